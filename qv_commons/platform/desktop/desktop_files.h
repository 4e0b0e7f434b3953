// Files by their path.
#pragma once

#include "qv_commons/platform/files.h"

namespace qv_commons::desktop {

class DesktopFiles final : public Files {
 public:
  // Only regular files are read: a pipe or a device has no whole.
  FileContents read(const FileLocation& location) const override;
};

}  // namespace qv_commons::desktop
