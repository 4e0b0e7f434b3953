#include "qv_commons/age_gate/age_gate_refused_view_controller.h"

#include <optional>
#include <utility>

#include "qv_commons/age_gate/app_name_placeholder.h"
#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {

std::shared_ptr<QV_AgeGateRefusedViewController> QV_AgeGateRefusedViewController::create(
    const Platform& platform) {
  return fromLayout<QV_AgeGateRefusedViewController>(platform);
}

QV_AgeGateRefusedViewController::QV_AgeGateRefusedViewController(
    std::unique_ptr<ViewController> native, const Platform& platform)
    : AgeGateScreen(kClassName, std::move(native), platform) {}

std::vector<Outlet> QV_AgeGateRefusedViewController::outlets() {
  return {{"bg", bg}, {"contact", contact}, {"tos", tos}, {"header", header}};
}

std::vector<Action> QV_AgeGateRefusedViewController::actions() {
  return {};
}

void QV_AgeGateRefusedViewController::viewDidLoad() {
  setUpPanel();
  setUpPolicyLinks();

  TextView& contactText = connected(contact, "contact");
  applyContactLink(contactText, *colorTheme);
  contactText.setDelegate(this);

  Label& heading = connected(header, "header");
  heading.setTextColor(colorTheme->textColor);
  const std::optional<std::string> text = heading.text();
  if (!text) fatalError("QV_AgeGateRefusedViewController: the header has no text");
  heading.setText(fillInAppName(*text, appNameOf(platform_.bundles.mainBundle())));
}

bool QV_AgeGateRefusedViewController::shouldInteractWithURL(TextView&, std::string_view url,
                                                            TextRange) {
  if (url.find(kContactLink) != std::string_view::npos) {
    // A copy: the host may let go of this screen from it.
    if (const ContactUsHandler handler = contactUsHandler) handler(*this);
  }
  return false;
}

}  // namespace qv_commons
