#include "qv_commons/age_gate/age_gate_view_controller.h"

#include <utility>

#include "qv_commons/age_gate/age_gate_decision.h"
#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/age_gate/birth_date.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/user_defaults.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {

std::shared_ptr<QV_AgeGateViewController> QV_AgeGateViewController::create(
    const Platform& platform) {
  return fromLayout<QV_AgeGateViewController>(platform);
}

QV_AgeGateViewController::QV_AgeGateViewController(std::unique_ptr<ViewController> native,
                                                   const Platform& platform)
    : AgeGateScreen(kClassName, std::move(native), platform) {}

std::vector<Outlet> QV_AgeGateViewController::outlets() {
  return {{"bg", bg},   {"confirmBtn", confirmBtn}, {"datePicker", datePicker},
          {"tos", tos}, {"header", header},         {"subtitle", subtitle}};
}

std::vector<Action> QV_AgeGateViewController::actions() {
  return {{"onDateChanged:", [this] { onDateChanged(); }},
          {"onConfirmPressed:", [this] { onConfirmPressed(); }}};
}

void QV_AgeGateViewController::viewDidLoad() {
  setUpPanel();
  connected(header, "header").setTextColor(colorTheme->textColor);
  connected(subtitle, "subtitle").setTextColor(colorTheme->textColor);
  setUpConfirmButton();
  setUpPolicyLinks();
  setUpDatePicker();
}

void QV_AgeGateViewController::setUpConfirmButton() {
  Button& button = connected(confirmBtn, "confirmBtn");
  roundCorners(button);
  button.setEnabled(false);
  button.setTitleColor(colorTheme->policiesTextColor, ControlState::disabled);
  button.setTitleColor(colorTheme->buttonTextColor, ControlState::normal);
  button.setBackgroundColor(colorTheme->buttonBGColor);
}

void QV_AgeGateViewController::setUpDatePicker() {
  const Instant now = platform_.clock.now();
  DatePicker& picker = connected(datePicker, "datePicker");
  picker.setMaximumDate(platform_.calendar.dateByAddingYears(now, 1));
  picker.setDate(now);
}

void QV_AgeGateViewController::onDateChanged() {
  connected(confirmBtn, "confirmBtn").setEnabled(true);
}

void QV_AgeGateViewController::onConfirmPressed() {
  if (std::exchange(isConfirmed_, true)) return;
  // The dismissal, or the host, may give up the last reference to this screen.
  const std::shared_ptr<ViewController> self = retained();
  dismissViewController(true, nullptr);
  platform_.userDefaults.setBool(true, kAgeGateShownKey);
  const BirthDate birth = {connected(datePicker, "datePicker").date()};
  const Instant now = platform_.clock.now();
  if (judgeBirthDate(birth, now, platform_.calendar, minimumAgerequired) ==
      AgeGateVerdict::refused) {
    refuse();
  } else {
    platform_.userDefaults.commit();
    if (const Completion completion = completionHandler) completion();
  }
}

void QV_AgeGateViewController::refuse() {
  platform_.userDefaults.setBool(true, kAgeGateBlockedKey);
  platform_.userDefaults.commit();  // both flags or neither
  auto refusal = QV_AgeGateRefusedViewController::create(platform_);
  if (platform_.device.isSystemVersionAtLeast(13)) {
    refusal->setModalInPresentation(true);
    // It keeps the look of this moment; at a later start the refusal follows the system.
    refusal->setOverrideUserInterfaceStyle(platform_.device.userInterfaceStyle());
  }
  refusal->setContent(contactUsHandler, privacyLink, termsOfServiceLink, colorTheme);
  if (viewController) viewController->presentViewController(std::move(refusal), true, nullptr);
}

}  // namespace qv_commons
