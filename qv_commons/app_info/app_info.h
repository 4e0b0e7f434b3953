// The host app's particulars, read from a given bundle.
//
//     std::string version = qv_commons::appVersionOf(platform.mainBundle());
//
// `QV_AppInfoHelper` says what each gives; this is the same for callers that hold a bundle.
#pragma once

#include <string>

#include "qv_commons/platform/bundle.h"

namespace qv_commons {

std::string appVersionOf(const Bundle& bundle);
std::string appIdOf(const Bundle& bundle);
std::string appNameOf(const Bundle& bundle);

}  // namespace qv_commons
