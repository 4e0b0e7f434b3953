#include "qv_commons/age_gate/age_gate_screen.h"

#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/view_controllers.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {

AgeGateScreen::AgeGateScreen(std::string_view className, std::unique_ptr<ViewController> native,
                             const Platform& platform)
    : LayoutScreen(std::move(native)),
      colorTheme(defaultThemeOf(platform)),
      platform_(platform),
      className_(className) {}

std::shared_ptr<LayoutScreen> AgeGateScreen::fromLayout(std::string_view name,
                                                        const Platform& platform, Maker make) {
  return platform.viewControllers.initWithNibName(
      name, resourceBundleOf(platform.bundles),
      [make, &platform](std::unique_ptr<ViewController> native) {
        return make(std::move(native), platform);
      });
}

void AgeGateScreen::setContent(ContactUsHandler contactUs, std::string_view privacy,
                               std::string_view termsOfService,
                               std::shared_ptr<QV_AgeGateColorTheme> theme) {
  contactUsHandler = std::move(contactUs);
  privacyLink = std::string(privacy);
  termsOfServiceLink = std::string(termsOfService);
  colorTheme = std::move(theme);
}

void AgeGateScreen::setUpPanel() {
  View& panel = connected(bg, "bg");
  panel.setBackgroundColor(colorTheme->backgroundColor);
  roundCorners(panel);
}

void AgeGateScreen::setUpPolicyLinks() {
  applyPolicyLinks(connected(tos, "tos"), privacyLink, termsOfServiceLink, *colorTheme);
}

void AgeGateScreen::roundCorners(View& view) {
  view.setCornerRadius(8);
  view.setClipsToBounds(true);
}

void AgeGateScreen::stopAtOutlet(std::string_view name) const {
  fatalError(joinedText({className_, ": the outlet \"", name, "\" is not connected"}));
}

}  // namespace qv_commons
