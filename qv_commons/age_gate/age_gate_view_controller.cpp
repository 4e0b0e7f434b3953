#include "qv_commons/age_gate/age_gate_view_controller.h"

#include <utility>

#include "qv_commons/age_gate/age_gate_decision.h"
#include "qv_commons/age_gate/birth_date.h"
#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/age_gate/refused_screen.h"
#include "qv_commons/age_gate/screen_parts.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/platform/user_defaults.h"
#include "qv_commons/platform/views.h"

namespace qv_commons {

std::shared_ptr<QV_AgeGateViewController> QV_AgeGateViewController::create(
    const Platform& platform) {
  return makeScreen<QV_AgeGateViewController>(platform);
}

QV_AgeGateViewController::QV_AgeGateViewController(std::unique_ptr<ViewController> native,
                                                   const Platform& platform)
    : LayoutScreen(std::move(native)), colorTheme(defaultThemeOf(platform)), platform_(platform) {}

std::vector<Outlet> QV_AgeGateViewController::outlets() {
  return {{"bg", bg},   {"confirmBtn", confirmBtn}, {"datePicker", datePicker},
          {"tos", tos}, {"header", header},         {"subtitle", subtitle}};
}

std::vector<Action> QV_AgeGateViewController::actions() {
  return {{"onDateChanged:", [this] { onDateChanged(); }},
          {"onConfirmPressed:", [this] { onConfirmPressed(); }}};
}

void QV_AgeGateViewController::viewDidLoad() {
  const auto panel = connected(*this, bg, "bg");
  panel->setBackgroundColor(colorTheme->backgroundColor);
  roundCorners(*panel);
  connected(*this, header, "header")->setTextColor(colorTheme->textColor);
  connected(*this, subtitle, "subtitle")->setTextColor(colorTheme->textColor);
  setUpConfirmButton();
  applyPolicyLinks(*connected(*this, tos, "tos"), privacyLink, termsOfServiceLink, *colorTheme);
  setUpDatePicker();
}

void QV_AgeGateViewController::setUpConfirmButton() {
  const auto button = connected(*this, confirmBtn, "confirmBtn");
  roundCorners(*button);
  button->setEnabled(false);
  button->setTitleColor(colorTheme->policiesTextColor, ControlState::disabled);
  button->setTitleColor(colorTheme->buttonTextColor, ControlState::normal);
  button->setBackgroundColor(colorTheme->buttonBGColor);
}

void QV_AgeGateViewController::setUpDatePicker() {
  const Instant now = platform_.clock.now();
  const auto picker = connected(*this, datePicker, "datePicker");
  picker->setMaximumDate(platform_.calendar.dateByAddingYears(now, 1));
  picker->setDate(now);
}

void QV_AgeGateViewController::onDateChanged() {
  connected(*this, confirmBtn, "confirmBtn")->setEnabled(true);
}

void QV_AgeGateViewController::onConfirmPressed() {
  if (std::exchange(isConfirmed_, true)) return;
  // The dismissal, or the host, may give up the last reference to this screen.
  const std::shared_ptr<ViewController> self = retained();
  dismissViewController(true, nullptr);
  platform_.userDefaults.setBool(true, kAgeGateShownKey);
  const BirthDate birth = {connected(*this, datePicker, "datePicker")->date()};
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
  auto refusal =
      makeRefusedScreen(platform_, {contactUsHandler, privacyLink, termsOfServiceLink, colorTheme},
                        RefusedScreenLook::pinned);
  if (viewController) viewController->presentViewController(std::move(refusal), true, nullptr);
}

}  // namespace qv_commons
