// The user confirms a date of birth on the age gate screen.
#include "tests/age_gate/age_gate_fixture.h"

namespace qv_commons {
namespace {

using test::kDay;
using test::kEighteenYearsAgo;
using test::kNow;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Pair;
using testing::UnorderedElementsAre;

class AgeGateConfirm : public test::AgeGateFixture {
 protected:
  void startAndForgetLines(std::int64_t minimumAge = 18) {
    start(minimumAge);
    gate = screen();
    forgetLines();
  }

  void confirm(Instant birth) {
    ASSERT_TRUE(gate->pick("datePicker", birth));
    forgetLines();
    ASSERT_TRUE(gate->tap("confirmBtn"));
  }

  const auto& flags() { return platform.userDefaults().values; }

  memory::MemoryScreen* gate = nullptr;
};

TEST_F(AgeGateConfirm, LetsAnOldEnoughUserThroughAtOnce) {
  startAndForgetLines();
  platform.transitions().setByHand(true);
  confirm(kEighteenYearsAgo);
  EXPECT_THAT(lines(),
              ElementsAre("screen1.dismissViewController animated, no completion",
                          "userDefaults.setBool true QV_AgeGate_Shown", "screen1.datePicker.date",
                          "clock.now", "calendar.yearsBetween 1132006400.0 1700000000.0",
                          "userDefaults.commit"));
  EXPECT_EQ(platform.transitions().waiting(), 1u);  // the dismissal still runs
  EXPECT_EQ(completions, 1);
  EXPECT_THAT(flags(), UnorderedElementsAre(Pair("QV_AgeGate_Shown", true)));
}

TEST_F(AgeGateConfirm, RefusesAUserUnderAge) {
  platform.mainBundle().info["CFBundleDisplayName"] = "Notes";
  startAndForgetLines();
  confirm(kEighteenYearsAgo + kDay);
  EXPECT_THAT(
      lines(),
      ElementsAre(
          "screen1.dismissViewController animated, no completion",
          "userDefaults.setBool true QV_AgeGate_Shown", "screen1.datePicker.date", "clock.now",
          "calendar.yearsBetween 1132092800.0 1700000000.0",
          "userDefaults.setBool true QV_AgeGate_Blocked", "userDefaults.commit",
          "libraryBundle.URLForResource QV_Commons_iOS.bundle",
          "bundles.bundleWithURL /library/QV_Commons_iOS.bundle",
          "viewControllers.initWithNibName screen2 QV_AgeGateRefusedViewController resourceBundle",
          "device.isSystemVersionAtLeast 13", "device.userInterfaceStyle",
          "device.isSystemVersionAtLeast 13", "screen2.setModalInPresentation true",
          "device.userInterfaceStyle", "screen2.setOverrideUserInterfaceStyle light",
          "home.presentViewController screen2 animated, no completion",
          "screen2.load QV_AgeGateRefusedViewController",
          "screen2.bg.setBackgroundColor 1.0 0.0 0.0 1.0", "screen2.bg.setCornerRadius 8.0",
          "screen2.bg.setClipsToBounds true", "screen2.tos.textLength",
          "screen2.tos.addLinks \"https://example.com/privacy\" 0 14, "
          "\"https://example.com/terms\" 17 16, 0.5 0.0 0.5 1.0",
          "screen2.tos.setTextColor 0.25 0.5 0.75 1.0", "screen2.contact.textLength",
          "screen2.contact.addLinks \"mailto\" 38 22, 0.5 0.0 0.5 1.0",
          "screen2.contact.setTextColor 0.25 0.5 0.75 1.0", "screen2.contact.setDelegate",
          "screen2.header.setTextColor 0.25 0.5 0.75 1.0", "screen2.header.text",
          "mainBundle.textForInfoDictionaryKey CFBundleDisplayName",
          "screen2.header.setText \"We’re sorry, Notes isn’t available to you\""));
  EXPECT_EQ(completions, 0);
  EXPECT_THAT(flags(), UnorderedElementsAre(Pair("QV_AgeGate_Shown", true),
                                            Pair("QV_AgeGate_Blocked", true)));
}

TEST_F(AgeGateConfirm, HandsItsThemeLinksAndHandlerToTheRefusal) {
  startAndForgetLines();
  confirm(kNow);
  auto& refusal = static_cast<QV_AgeGateRefusedViewController&>(screen()->controller());
  EXPECT_EQ(refusal.colorTheme, theme);
  EXPECT_EQ(refusal.privacyLink, "https://example.com/privacy");
  EXPECT_EQ(refusal.termsOfServiceLink, "https://example.com/terms");
  EXPECT_THAT(contacted, IsEmpty());
  EXPECT_TRUE(screen()->tapLink("contact", 38));
  EXPECT_THAT(contacted, ElementsAre(&refusal));
}

TEST_F(AgeGateConfirm, PinsTheRefusalToTheLookOfThatMoment) {
  startAndForgetLines();
  platform.device().style = UserInterfaceStyle::dark;
  confirm(kNow);
  platform.device().style = UserInterfaceStyle::light;
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::dark);
}

TEST_F(AgeGateConfirm, NeitherPinsTheRefusalNorMakesItModalBeforeVersionThirteen) {
  platform.device().version = "12.4";
  startAndForgetLines();
  confirm(kNow);
  EXPECT_FALSE(screen()->isModalInPresentation());
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::unspecified);
  EXPECT_THAT(lines(), testing::Not(Contains("device.userInterfaceStyle")));
}

TEST_F(AgeGateConfirm, AllowsEveryDateThatCanBePickedForAMinimumOfZero) {
  startAndForgetLines(0);
  confirm(kNow + 3660 * kDay);  // the picker stays at its maximum, a year from now
  EXPECT_THAT(lines(), Contains("calendar.yearsBetween 1731622400.0 1700000000.0"));
  EXPECT_EQ(completions, 0);  // a whole year ahead, to the second: -1
  EXPECT_TRUE(flags().at("QV_AgeGate_Blocked"));
}

TEST_F(AgeGateConfirm, AllowsADateAheadOnceTimeHasPassedForAMinimumOfZero) {
  startAndForgetLines(0);
  platform.clock().time = kNow + test::kSecond;  // between loading and confirming
  confirm(kNow + 3660 * kDay);
  EXPECT_EQ(completions, 1);
}

TEST_F(AgeGateConfirm, AllowsEveryDateForANegativeMinimum) {
  startAndForgetLines(-1);
  confirm(kNow + 3660 * kDay);
  EXPECT_EQ(completions, 1);
}

TEST_F(AgeGateConfirm, RefusesAFutureDateForAPositiveMinimum) {
  startAndForgetLines(1);
  confirm(kNow + kDay);
  EXPECT_EQ(completions, 0);
  EXPECT_TRUE(flags().at("QV_AgeGate_Blocked"));
}

TEST_F(AgeGateConfirm, SkipsAnAbsentCompletion) {
  QV_AgeGateHelper::startAgeGateProcess(home, 18, nullptr, nullptr, theme, "", "");
  gate = screen();
  confirm({});
  EXPECT_THAT(flags(), UnorderedElementsAre(Pair("QV_AgeGate_Shown", true)));
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(AgeGateConfirm, WritesBothFlagsAndShowsNothingWithoutAHost) {
  const auto alone = QV_AgeGateViewController::create(platform.platform());
  screen()->load();
  forgetLines();
  alone->onConfirmPressed();  // the picker shows now, the minimum is 16
  EXPECT_THAT(
      lines(),
      ElementsAre("screen1.dismissViewController animated, no completion",
                  "userDefaults.setBool true QV_AgeGate_Shown", "screen1.datePicker.date",
                  "clock.now", "calendar.yearsBetween 1700000000.0 1700000000.0",
                  "userDefaults.setBool true QV_AgeGate_Blocked", "userDefaults.commit",
                  "libraryBundle.URLForResource QV_Commons_iOS.bundle",
                  "bundles.bundleWithURL /library/QV_Commons_iOS.bundle",
                  "viewControllers.initWithNibName screen2 QV_AgeGateRefusedViewController "
                  "resourceBundle",
                  "device.isSystemVersionAtLeast 13", "device.userInterfaceStyle",
                  "device.isSystemVersionAtLeast 13", "screen2.setModalInPresentation true",
                  "device.userInterfaceStyle", "screen2.setOverrideUserInterfaceStyle light"));
  EXPECT_EQ(screen()->name(), "screen1");  // the refusal is gone
}

TEST_F(AgeGateConfirm, IsAskedOnceInTheLifeOfTheApp) {
  startAndForgetLines();
  confirm(kEighteenYearsAgo);
  start();
  start();
  EXPECT_EQ(completions, 3);
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(AgeGateConfirm, RefusesForGood) {
  startAndForgetLines();
  confirm(kNow);
  screen()->dismissViewController(false, nullptr);
  forgetLines();
  start();
  EXPECT_EQ(completions, 0);
  EXPECT_THAT(lines(), IsSupersetOf({"home.presentViewController screen3 animated, no completion",
                                     "screen3.load QV_AgeGateRefusedViewController"}));
}

}  // namespace
}  // namespace qv_commons
