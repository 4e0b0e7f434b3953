#include "qv_commons/age_gate/refused_screen.h"

#include <utility>

#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {

std::shared_ptr<QV_AgeGateRefusedViewController> makeRefusedScreen(const Platform& platform,
                                                                   RefusedScreenContent content,
                                                                   RefusedScreenLook look) {
  auto screen = QV_AgeGateRefusedViewController::create(platform);
  screen->contactUsHandler = std::move(content.contactUsHandler);
  screen->privacyLink = std::move(content.privacyLink);
  screen->termsOfServiceLink = std::move(content.termsOfServiceLink);
  screen->colorTheme = std::move(content.colorTheme);
  if (platform.device.isSystemVersionAtLeast(13)) {
    screen->setModalInPresentation(true);
    if (look == RefusedScreenLook::pinned) {
      screen->setOverrideUserInterfaceStyle(platform.device.userInterfaceStyle());
    }
  }
  return screen;
}

std::string fillInAppName(std::string_view text, std::string_view appName) {
  constexpr std::string_view kPlaceholder = "[APPNAME]";
  std::string filled;
  for (;;) {
    const std::size_t found = text.find(kPlaceholder);
    filled.append(text.substr(0, found));
    if (found == std::string_view::npos) return filled;
    filled.append(appName);
    text.remove_prefix(found + kPlaceholder.size());
  }
}

}  // namespace qv_commons
