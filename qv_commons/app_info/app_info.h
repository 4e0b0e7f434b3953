// An app's version, identifier and display name, from its bundle.
//
//     std::string version = qv_commons::appVersionOf(platform.mainBundle());
//
// For callers that have a bundle; `QV_AppInfoHelper` says what each gives.
#pragma once

#include <string>

#include "qv_commons/platform/bundle.h"

namespace qv_commons {

std::string appVersionOf(const Bundle& bundle);
std::string appIdOf(const Bundle& bundle);
std::string appNameOf(const Bundle& bundle);

}  // namespace qv_commons
