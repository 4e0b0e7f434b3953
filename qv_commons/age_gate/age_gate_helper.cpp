#include "qv_commons/age_gate/age_gate_helper.h"

#include <utility>

#include "qv_commons/age_gate/age_gate_decision.h"
#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/age_gate/refused_screen.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons {
namespace {

std::shared_ptr<QV_AgeGateViewController> makeAgeGateScreen(const Platform& platform) {
  auto screen = QV_AgeGateViewController::create(platform);
  if (platform.device.isSystemVersionAtLeast(13)) {
    screen->setModalInPresentation(true);
  }
  return screen;
}

}  // namespace

void QV_AgeGateHelper::startAgeGateProcess(std::shared_ptr<ViewController> viewController,
                                           std::int64_t minimumAgeRequired, Completion completion,
                                           ContactUsHandler contactUsHandler,
                                           std::shared_ptr<QV_AgeGateColorTheme> colorTheme,
                                           std::string_view privacyLink,
                                           std::string_view termsOfServiceLink) {
  if (!viewController) fatalError("QV_AgeGateHelper: viewController is null");
  if (!colorTheme) fatalError("QV_AgeGateHelper: colorTheme is null");
  const Platform& platform = currentPlatform();
  switch (decideAgeGateStart(platform.userDefaults)) {
    case AgeGateStartDecision::callCompletion:
      if (completion) completion();
      break;
    case AgeGateStartDecision::presentAgeGate: {
      auto screen = makeAgeGateScreen(platform);
      screen->viewController = viewController;
      screen->completionHandler = std::move(completion);
      screen->contactUsHandler = std::move(contactUsHandler);
      screen->minimumAgerequired = minimumAgeRequired;
      screen->privacyLink = privacyLink;
      screen->termsOfServiceLink = termsOfServiceLink;
      screen->colorTheme = std::move(colorTheme);
      viewController->presentViewController(std::move(screen), true, nullptr);
      break;
    }
    case AgeGateStartDecision::presentRefused:
      viewController->presentViewController(
          makeRefusedScreen(platform,
                            {std::move(contactUsHandler), std::string(privacyLink),
                             std::string(termsOfServiceLink), std::move(colorTheme)},
                            RefusedScreenLook::followsSystem),
          true, nullptr);
      break;
  }
}

}  // namespace qv_commons
