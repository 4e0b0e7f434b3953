// The screen that asks for the date of birth, and judges it when the user confirms.
//
// `QV_AgeGateHelper` makes and presents it; by itself, with its defaults:
//
//     qv_commons::ScopedPlatform scope(platform.platform());
//     auto screen = qv_commons::QV_AgeGateViewController::create(platform.platform());
//     screen->minimumAgerequired = 18;
//     screen->completionHandler = [] {};  // old enough
//     platform.makeViewController("home")->presentViewController(screen, true, nullptr);
//
// Main thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "qv_commons/age_gate/age_gate_screen.h"
#include "qv_commons/export.h"

namespace qv_commons {

class Button;
class DatePicker;

class QV_COMMONS_EXPORT QV_AgeGateViewController final : public AgeGateScreen {
 public:
  // Also the name of its layout.
  static constexpr std::string_view kClassName = "QV_AgeGateViewController";

  // A new screen, not yet loaded, from the layout in the library's resource bundle. `platform` must
  // outlive it.
  static std::shared_ptr<QV_AgeGateViewController> create(const Platform& platform);

  // For adapters: with every field at its default. `native` shows the screen.
  QV_AgeGateViewController(std::unique_ptr<ViewController> native, const Platform& platform);

  // Connected by the layout.
  std::weak_ptr<Button> confirmBtn;
  std::weak_ptr<DatePicker> datePicker;
  std::weak_ptr<Label> subtitle;

  // To be set before the screen loads.
  std::shared_ptr<ViewController> viewController;  // the host's, which presents the refusal
  std::int64_t minimumAgerequired = 16;
  Completion completionHandler;  // for a user who is old enough

  std::vector<Outlet> outlets() override;
  std::vector<Action> actions() override;

  // Dresses the views; the user can pick a date up to one year from now, and confirm once a date
  // has been picked. An outlet that is not connected, and a policy text that doesn't fit the links,
  // are fatal errors.
  void viewDidLoad() override;

  // The user has picked a date: confirming becomes possible, and stays so.
  void onDateChanged();

  // The user confirms: dismisses the screen, remembers that it was shown, and judges the date that
  // the picker shows. Old enough: calls `completionHandler` at once. Under age: remembers that too
  // and has `viewController`, if there is one, present the refusal. The outcome is persisted before
  // either. A second confirm of the same screen does nothing.
  void onConfirmPressed();

 private:
  void setUpConfirmButton();
  void setUpDatePicker();
  void refuse();

  bool isConfirmed_ = false;
};

}  // namespace qv_commons
