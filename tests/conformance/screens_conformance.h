// What layouts and their views hold to in every adapter, with the layouts that the library brings.
// `Adapter` has `platform()`, `makeHost()` for a host's screen, and plays the user on the screen on
// top: `pick(birth)`, `tapConfirm()` and `tapContactLink()`, which say whether the tap had a
// target.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/app_info/resource_bundle.h"

namespace qv_commons::test {

// Asks for views that the age gate's layout has, has not, and has of another class.
class ProbeScreen final : public LayoutScreen {
 public:
  using LayoutScreen::LayoutScreen;

  std::weak_ptr<Label> header;
  std::weak_ptr<View> anyView;
  std::weak_ptr<Label> missing;
  std::weak_ptr<Label> ofAnotherClass;
  int loads = 0;

  std::vector<Outlet> outlets() override {
    return {{"header", &header},
            {"confirmBtn", &anyView},
            {"missing", &missing},
            {"datePicker", &ofAnotherClass}};
  }
  std::vector<Action> actions() override {
    return {{"onDateChanged:", [] {}}, {"onConfirmPressed:", [] {}}};
  }
  void viewDidLoad() override { ++loads; }
};

template <class Adapter>
class ScreensConformance : public testing::Test {
 protected:
  std::shared_ptr<ProbeScreen> makeProbe() {
    const Platform& platform = adapter.platform();
    return std::static_pointer_cast<ProbeScreen>(platform.layoutLoader.initWithNibName(
        "QV_AgeGateViewController", resourceBundleOf(platform.bundles),
        [](NativeViewController& native) { return std::make_unique<ProbeScreen>(native); }));
  }

  std::shared_ptr<QV_AgeGateViewController> presentAgeGate() {
    auto gate = QV_AgeGateViewController::create(adapter.platform());
    host->presentViewController(gate, true, nullptr);
    return gate;
  }

  std::shared_ptr<QV_AgeGateRefusedViewController> presentRefusal() {
    auto refusal = QV_AgeGateRefusedViewController::create(adapter.platform());
    refusal->contactUsHandler = [this](ViewController& screen) { contacted = &screen; };
    host->presentViewController(refusal, true, nullptr);
    return refusal;
  }

  Adapter adapter;
  ScopedPlatform scope{adapter.platform()};
  std::shared_ptr<ViewController> host = adapter.makeHost();
  ViewController* contacted = nullptr;
};

TYPED_TEST_SUITE_P(ScreensConformance);

TYPED_TEST_P(ScreensConformance, LoadOnceAndWhenTheyArePresented) {
  const auto probe = this->makeProbe();
  EXPECT_EQ(probe->loads, 0);
  EXPECT_TRUE(probe->header.expired());
  this->host->presentViewController(probe, true, nullptr);
  EXPECT_EQ(probe->loads, 1);
  probe->dismissViewController(true, nullptr);
  this->host->presentViewController(probe, true, nullptr);
  EXPECT_EQ(probe->loads, 1);
}

TYPED_TEST_P(ScreensConformance, ConnectOutletsOfThatNameAndClass) {
  const auto probe = this->makeProbe();
  this->host->presentViewController(probe, true, nullptr);
  EXPECT_FALSE(probe->header.expired());
  EXPECT_FALSE(probe->anyView.expired());
  EXPECT_TRUE(probe->missing.expired());
  EXPECT_TRUE(probe->ofAnotherClass.expired());
}

TYPED_TEST_P(ScreensConformance, GiveTheTextsOfTheirLabels) {
  const auto probe = this->makeProbe();
  this->host->presentViewController(probe, true, nullptr);
  const auto header = probe->header.lock();
  EXPECT_EQ(header->text(), "What’s your date of birth?");
  header->setText("Désolé 👍");
  EXPECT_EQ(header->text(), "Désolé 👍");
}

TYPED_TEST_P(ScreensConformance, HaveTextsThatFitTheLinks) {
  EXPECT_EQ(this->presentAgeGate()->tos.lock()->attributedText()->length(), 33u);
  const auto refusal = this->presentRefusal();
  EXPECT_EQ(refusal->tos.lock()->attributedText()->length(), 33u);
  EXPECT_EQ(refusal->contact.lock()->attributedText()->length(), 61u);
}

TYPED_TEST_P(ScreensConformance, KeepTheDateOfTheirPickerBelowItsMaximum) {
  const auto gate = this->presentAgeGate();
  const auto picker = gate->datePicker.lock();
  picker->setDate(951782400);
  EXPECT_EQ(picker->date(), 951782400);
  picker->setMaximumDate(951782400 - 86400);
  EXPECT_EQ(picker->date(), 951782400 - 86400);
  picker->setMaximumDate(std::nullopt);
  picker->setDate(1709164800);
  EXPECT_EQ(picker->date(), 1709164800);
}

TYPED_TEST_P(ScreensConformance, RunTheActionOfAnEnabledButtonOnly) {
  const auto gate = this->presentAgeGate();
  int completions = 0;
  gate->completionHandler = [&] { ++completions; };
  EXPECT_FALSE(this->adapter.tapConfirm());
  EXPECT_TRUE(this->adapter.pick(951782400));  // 2000-02-29
  EXPECT_TRUE(this->adapter.tapConfirm());
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(this->host->presentedViewController(), nullptr);
}

TYPED_TEST_P(ScreensConformance, GiveAChosenContactLinkToTheScreen) {
  const auto refusal = this->presentRefusal();
  EXPECT_TRUE(this->adapter.tapContactLink());
  EXPECT_EQ(this->contacted, refusal.get());
}

TYPED_TEST_P(ScreensConformance, AreKeptAliveWhileTheyAreRetained) {
  std::shared_ptr<ViewController> kept = this->presentAgeGate()->retained();
  const std::weak_ptr<ViewController> gate = kept;
  kept->dismissViewController(false, nullptr);
  EXPECT_FALSE(gate.expired());
  EXPECT_FALSE(static_cast<QV_AgeGateViewController&>(*kept).datePicker.expired());
}

REGISTER_TYPED_TEST_SUITE_P(ScreensConformance, LoadOnceAndWhenTheyArePresented,
                            ConnectOutletsOfThatNameAndClass, GiveTheTextsOfTheirLabels,
                            HaveTextsThatFitTheLinks, KeepTheDateOfTheirPickerBelowItsMaximum,
                            RunTheActionOfAnEnabledButtonOnly, GiveAChosenContactLinkToTheScreen,
                            AreKeptAliveWhileTheyAreRetained);

}  // namespace qv_commons::test
