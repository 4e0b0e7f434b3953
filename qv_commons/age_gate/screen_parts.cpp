#include "qv_commons/age_gate/screen_parts.h"

#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {

std::shared_ptr<LayoutScreen> makeScreen(const Platform& platform, std::string_view layout,
                                         const LayoutScreenFactory& make) {
  return platform.viewControllers.initWithNibName(layout, resourceBundleOf(platform.bundles), make);
}

void stopAtOutlet(std::string_view screen, std::string_view name) {
  fatalError(std::string(screen) + ": the outlet \"" + std::string(name) + "\" is not connected");
}

}  // namespace qv_commons
