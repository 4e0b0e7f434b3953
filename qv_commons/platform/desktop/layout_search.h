// Where a screen's layout is.
#pragma once

#include <string>
#include <string_view>

#include "qv_commons/platform/bundle.h"

namespace qv_commons::desktop {

// `name`.ui in `bundle`, which may be missing; else the library's own copy, as a name that Qt
// opens. A host that sets `resourceDirectory` means that folder: without the layout there, as
// without any copy, it is a fatal error that names the setting and every place that was searched.
std::string findLayout(std::string_view name, const Bundle* bundle,
                       const std::string& resourceDirectory);

}  // namespace qv_commons::desktop
