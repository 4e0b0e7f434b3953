// Conformance of layouts and their views, with the layouts that the library brings.
#pragma once

#include <memory>
#include <optional>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/user_defaults.h"
#include "qv_commons/platform/views.h"

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

// Asks for views that the age gate's layout has, has not, and has of another class.
class ProbeScreen final : public LayoutScreen {
 public:
  using LayoutScreen::LayoutScreen;

  std::weak_ptr<Label> header;
  std::weak_ptr<View> anyView;
  std::weak_ptr<Label> missing;
  std::weak_ptr<Label> ofAnotherClass;
  int loads = 0;

  std::string_view headingOutlet() const override { return "header"; }
  std::vector<Outlet> outlets() override {
    return {{"header", header},
            {"confirmBtn", anyView},
            {"missing", missing},
            {"datePicker", ofAnotherClass}};
  }
  std::vector<Action> actions() override {
    return {{"onDateChanged:", [] {}}, {"onConfirmPressed:", [] {}}};
  }
  void viewDidLoad() override { ++loads; }
};

class ScreensConformance : public Suite {
 protected:
  void SetUp() override {
    scope_.emplace(platform());
    host = adapter().makeRootScreen();
  }

  void present(std::shared_ptr<ViewController> screen) {
    host->presentViewController(std::move(screen), true, nullptr);
    adapter().settle();
  }

  void dismiss(ViewController& screen) {
    screen.dismissViewController(true, nullptr);
    adapter().settle();
  }

  std::shared_ptr<ProbeScreen> makeProbe() {
    return std::static_pointer_cast<ProbeScreen>(platform().viewControllers.initWithNibName(
        "QV_AgeGateViewController", resourceBundleOf(platform().bundles),
        [](std::unique_ptr<ViewController> native) {
          return std::make_shared<ProbeScreen>(std::move(native));
        }));
  }

  std::shared_ptr<QV_AgeGateViewController> presentAgeGate() {
    auto gate = QV_AgeGateViewController::create(platform());
    present(gate);
    return gate;
  }

  std::shared_ptr<QV_AgeGateRefusedViewController> presentRefusal() {
    auto refusal = QV_AgeGateRefusedViewController::create(platform());
    refusal->contactUsHandler = [this](ViewController& screen) { contacted = &screen; };
    present(refusal);
    return refusal;
  }

  std::shared_ptr<ViewController> host;
  ViewController* contacted = nullptr;

 private:
  std::optional<ScopedPlatform> scope_;
};

TEST_P(ScreensConformance, LoadOnceAndWhenTheyArePresented) {
  const auto probe = makeProbe();
  EXPECT_EQ(probe->loads, 0);
  EXPECT_TRUE(probe->header.expired());
  present(probe);
  EXPECT_EQ(probe->loads, 1);
  dismiss(*probe);
  present(probe);
  EXPECT_EQ(probe->loads, 1);
}

TEST_P(ScreensConformance, KnowWhoPresentsThemAndWhatTheyPresent) {
  const auto probe = makeProbe();
  EXPECT_EQ(probe->presentingViewController(), nullptr);
  present(probe);
  EXPECT_EQ(probe->presentingViewController(), host.get());
  EXPECT_EQ(probe->childViewController(), nullptr);
  const auto gate = QV_AgeGateViewController::create(platform());
  probe->presentViewController(gate, true, nullptr);
  adapter().settle();
  EXPECT_EQ(probe->presentedViewController(), gate.get());
  EXPECT_EQ(gate->presentingViewController(), probe.get());
}

TEST_P(ScreensConformance, ConnectOutletsOfThatNameAndClass) {
  const auto probe = makeProbe();
  present(probe);
  EXPECT_FALSE(probe->header.expired());
  EXPECT_FALSE(probe->anyView.expired());
  EXPECT_TRUE(probe->missing.expired());
  EXPECT_TRUE(probe->ofAnotherClass.expired());
}

TEST_P(ScreensConformance, GiveTheTextsOfTheirLabels) {
  const auto probe = makeProbe();
  present(probe);
  const auto header = probe->header.lock();
  EXPECT_EQ(header->text(), "What’s your date of birth?");
  header->setText("Désolé 👍");
  EXPECT_EQ(header->text(), "Désolé 👍");
}

TEST_P(ScreensConformance, HaveTextsThatFitTheLinks) {
  EXPECT_EQ(presentAgeGate()->tos.lock()->textLength(), 33u);
  const auto refusal = presentRefusal();
  EXPECT_EQ(refusal->tos.lock()->textLength(), 33u);
  EXPECT_EQ(refusal->contact.lock()->textLength(), 61u);
}

TEST_P(ScreensConformance, KeepTheDateOfTheirPickerBelowItsMaximum) {
  const auto gate = presentAgeGate();
  const auto picker = gate->datePicker.lock();
  picker->setDate(instantAt(951782400));
  EXPECT_EQ(picker->date(), instantAt(951782400));
  picker->setMaximumDate(instantAt(951782400 - 86400));
  EXPECT_EQ(picker->date(), instantAt(951782400 - 86400));
  picker->setMaximumDate(std::nullopt);
  picker->setDate(instantAt(1709164800));
  EXPECT_EQ(picker->date(), instantAt(1709164800));
}

TEST_P(ScreensConformance, RunTheActionOfAnEnabledButtonOnly) {
  const auto gate = presentAgeGate();
  int completions = 0;
  gate->completionHandler = [&] { ++completions; };
  EXPECT_FALSE(adapter().tapConfirm());
  EXPECT_TRUE(adapter().pick(instantAt(951782400)));  // 2000-02-29
  EXPECT_TRUE(adapter().tapConfirm());
  adapter().settle();
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(host->presentedViewController(), nullptr);
}

TEST_P(ScreensConformance, GiveATappedContactLinkToTheScreen) {
  const auto refusal = presentRefusal();
  EXPECT_TRUE(adapter().tapContactLink());
  adapter().settle();
  EXPECT_EQ(contacted, refusal.get());
}

// The host has nothing to keep: the screens keep it, and it keeps them.
TEST_P(ScreensConformance, AppearOverAHostThatNobodyElseKeeps) {
  platform().userDefaults.setBool(true, "QV_AgeGate_Shown");
  platform().userDefaults.setBool(true, "QV_AgeGate_Blocked");
  QV_AgeGateHelper::startAgeGateProcess(
      std::exchange(host, nullptr), 18, nullptr,
      [this](ViewController& screen) { contacted = &screen; }, QV_AgeGateColorTheme::defaultTheme(),
      "", "");
  adapter().settle();
  EXPECT_TRUE(adapter().tapContactLink());
  adapter().settle();
  ASSERT_NE(contacted, nullptr);
  EXPECT_TRUE(adapter().isOnScreen(*contacted));
}

TEST_P(ScreensConformance, ConfirmOnceHoweverOftenTheUserTaps) {
  const auto gate = presentAgeGate();
  int completions = 0;
  gate->completionHandler = [&] { ++completions; };
  EXPECT_TRUE(adapter().pick(instantAt(951782400)));
  gate->onConfirmPressed();
  gate->onConfirmPressed();
  adapter().settle();
  EXPECT_EQ(completions, 1);
}

TEST_P(ScreensConformance, AreKeptAliveWhileTheyAreRetained) {
  std::shared_ptr<ViewController> kept = presentAgeGate()->retained();
  const std::weak_ptr<ViewController> gate = kept;
  kept->dismissViewController(false, nullptr);
  EXPECT_FALSE(gate.expired());
  EXPECT_FALSE(static_cast<QV_AgeGateViewController&>(*kept).datePicker.expired());
}

}  // namespace qv_commons::conformance
