#include "qv_commons/age_gate/age_gate_helper.h"

#include <utility>

#include "qv_commons/age_gate/age_gate_decision.h"
#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons {

void QV_AgeGateHelper::startAgeGateProcess(std::shared_ptr<ViewController> viewController,
                                           std::int64_t minimumAgeRequired, Completion completion,
                                           ContactUsHandler contactUsHandler,
                                           std::shared_ptr<QV_AgeGateColorTheme> colorTheme,
                                           std::string_view privacyLink,
                                           std::string_view termsOfServiceLink) {
  if (!viewController) fatalError("QV_AgeGateHelper: viewController is null");
  if (!colorTheme) fatalError("QV_AgeGateHelper: colorTheme is null");
  const Platform& platform = currentPlatform();
  const AgeGateStartDecision decision = decideAgeGateStart(platform.userDefaults);
  if (decision == AgeGateStartDecision::callCompletion) {
    if (completion) completion();
    return;
  }
  std::shared_ptr<AgeGateScreen> screen;
  if (decision == AgeGateStartDecision::presentRefused) {
    screen = QV_AgeGateRefusedViewController::create(platform);
  } else {
    auto ageGate = QV_AgeGateViewController::create(platform);
    ageGate->viewController = viewController;
    ageGate->completionHandler = std::move(completion);
    ageGate->minimumAgerequired = minimumAgeRequired;
    screen = std::move(ageGate);
  }
  if (platform.device.isSystemVersionAtLeast(13)) screen->setModalInPresentation(true);
  screen->setContent(std::move(contactUsHandler), privacyLink, termsOfServiceLink,
                     std::move(colorTheme));
  viewController->presentViewController(std::move(screen), true, nullptr);
}

}  // namespace qv_commons
