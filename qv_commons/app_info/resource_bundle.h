// The library's resource bundle, for callers that have the bundles.
//
//     auto resources = qv_commons::resourceBundleOf(platform.bundles());
//
// `QV_BundleFileHelper` says what it gives.
#pragma once

#include <memory>

#include "qv_commons/platform/bundle.h"

namespace qv_commons {

std::shared_ptr<Bundle> resourceBundleOf(const Bundles& bundles);

}  // namespace qv_commons
