#include "qv_commons/app_info/bundle_file_helper.h"

#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/app_info/utf8.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {

std::shared_ptr<Bundle> resourceBundleOf(const Bundles& bundles) {
  const auto location = bundles.libraryBundle().URLForResource("QV_Commons_iOS", "bundle");
  return location ? bundles.bundleWithURL(*location) : nullptr;
}

std::shared_ptr<Bundle> QV_BundleFileHelper::getQVCommonsResourceBundle() {
  return resourceBundleOf(currentPlatform().bundles);
}

std::optional<std::string> QV_BundleFileHelper::loadJsonFromBundle(std::string_view filename) {
  const Platform& platform = currentPlatform();
  const auto location = platform.bundles.mainBundle().URLForResource(filename, "json");
  if (!location) return std::nullopt;
  FileContents file = platform.bundles.read(*location);
  if (file.bytes && isUtf8(*file.bytes)) return std::move(file.bytes);
  platform.application.print(
      joinedText({"QV_BundleFileHelper - Error!! Unable to parse  ", filename, ".json"}));
  return std::nullopt;
}

}  // namespace qv_commons
