#include "qv_commons/app_info/resource_bundle.h"

#include <optional>

namespace qv_commons {

std::shared_ptr<Bundle> resourceBundleOf(const Bundles& bundles) {
  const std::optional<FileLocation> location =
      bundles.libraryBundle().URLForResource("QV_Commons_iOS", "bundle");
  return location ? bundles.bundleWithURL(*location) : nullptr;
}

}  // namespace qv_commons
