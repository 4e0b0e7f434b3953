// Files by their path.
#pragma once

#include "qv_commons/platform/bundle.h"

namespace qv_commons::desktop {

// The whole of a regular file: a pipe or a device has no whole. Ends early, with ECANCELED, in a
// BackgroundWork that is stopped.
FileContents readRegularFile(const FileLocation& location);

}  // namespace qv_commons::desktop
