#include "qv_commons/age_gate/age_gate_view_controller.h"

#include "tests/age_gate/age_gate_fixture.h"

namespace qv_commons {
namespace {

using memory::MemoryButton;
using memory::MemoryDatePicker;
using memory::MemoryLabel;
using memory::MemoryTextView;
using memory::MemoryView;
using test::kDay;
using test::kEighteenYearsAgo;
using test::kNow;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Pair;
using testing::UnorderedElementsAre;

class AgeGateScreen : public test::AgeGateFixture {
 protected:
  void startAndForgetLines(std::int64_t minimumAge = 18) {
    start(minimumAge);
    gate = screen();
    forgetLines();
  }

  void confirm(double birth) {
    ASSERT_TRUE(gate->pick("datePicker", birth));
    forgetLines();
    ASSERT_TRUE(gate->tap("confirmBtn"));
  }

  const auto& flags() { return platform.userDefaults().values; }

  std::shared_ptr<memory::MemoryScreen> gate;
};

TEST_F(AgeGateScreen, HasItsDefaultsWhereOnlyItsLayoutMadeIt) {
  platform.device().style = UserInterfaceStyle::dark;
  const auto alone = QV_AgeGateViewController::create(platform.platform());
  EXPECT_EQ(alone->minimumAgerequired, 16);
  EXPECT_EQ(alone->privacyLink, "");
  EXPECT_EQ(alone->termsOfServiceLink, "");
  EXPECT_EQ(alone->viewController, nullptr);
  EXPECT_FALSE(alone->completionHandler);
  EXPECT_FALSE(alone->contactUsHandler);
  EXPECT_EQ(alone->colorTheme->backgroundColor, (Color{0.118, 0.118, 0.118, 1}));
  EXPECT_TRUE(alone->bg.expired());
  EXPECT_TRUE(alone->confirmBtn.expired());
  EXPECT_TRUE(alone->datePicker.expired());
  EXPECT_TRUE(alone->tos.expired());
  EXPECT_TRUE(alone->header.expired());
  EXPECT_TRUE(alone->subtitle.expired());
}

TEST_F(AgeGateScreen, NamesItsOutletsAndActionsAsTheLayoutDoes) {
  const auto alone = QV_AgeGateViewController::create(platform.platform());
  std::vector<std::string> names;
  for (const Outlet& outlet : alone->outlets()) names.emplace_back(outlet.name);
  for (const Action& action : alone->actions()) names.emplace_back(action.selector);
  EXPECT_THAT(names, ElementsAre("bg", "confirmBtn", "datePicker", "tos", "header", "subtitle",
                                 "onDateChanged:", "onConfirmPressed:"));
}

TEST_F(AgeGateScreen, DoesNotOwnItsViews) {
  const auto alone = QV_AgeGateViewController::create(platform.platform());
  screen()->load();
  EXPECT_EQ(alone->bg.use_count(), 1);
  EXPECT_EQ(alone->datePicker.use_count(), 1);
}

TEST_F(AgeGateScreen, DressesItsViews) {
  start();
  const auto shown = screen();
  EXPECT_EQ(shown->view<MemoryView>("bg").backgroundColor(), test::kBackground);
  EXPECT_EQ(shown->view<MemoryView>("bg").cornerRadius(), 8);
  EXPECT_TRUE(shown->view<MemoryView>("bg").clipsToBounds());
  EXPECT_EQ(shown->view<MemoryLabel>("header").textColor(), test::kText);
  EXPECT_EQ(shown->view<MemoryLabel>("subtitle").textColor(), test::kText);
  const auto& button = shown->view<MemoryButton>("confirmBtn");
  EXPECT_EQ(button.backgroundColor(), test::kButtonBackground);
  EXPECT_EQ(button.titleColor(ControlState::normal), test::kButtonText);
  EXPECT_EQ(button.titleColor(ControlState::disabled), test::kPoliciesText);
  EXPECT_FALSE(button.isEnabled());
}

TEST_F(AgeGateScreen, SetsNoTextFromCode) {
  start();
  EXPECT_EQ(screen()->view<MemoryLabel>("header").text(), "What’s your date of birth?");
  EXPECT_EQ(screen()->view<MemoryLabel>("subtitle").text(),
            "We only use it to check your age and don’t keep it.");
}

TEST_F(AgeGateScreen, ReadsTheThemeWhenItLoadsAndNeverAgain) {
  startAndForgetLines();
  theme->textColor = {0, 0, 0};
  gate->pick("datePicker", 0);
  EXPECT_THAT(lines(), ElementsAre("screen1.confirmBtn.setEnabled true"));
  EXPECT_EQ(gate->view<MemoryLabel>("header").textColor(), test::kText);
}

TEST_F(AgeGateScreen, SetsThePickerToNowAndItsMaximumToAYearFromNow) {
  platform.clock().now = 1709164800.25;  // 2024-02-29 00:00:00.25
  start();
  auto& picker = screen()->view<MemoryDatePicker>("datePicker");
  EXPECT_EQ(picker.date(), 1709164800.25);
  EXPECT_EQ(picker.maximumDate(), 1740700800.25);  // 2025-02-28 00:00:00.25
}

TEST_F(AgeGateScreen, ClearsTheMaximumWhereTheCalendarGivesNone) {
  platform.calendar().available = false;
  start();
  EXPECT_THAT(lines(), Contains("screen1.datePicker.setMaximumDate none"));
  EXPECT_EQ(screen()->view<MemoryDatePicker>("datePicker").maximumDate(), std::nullopt);
  EXPECT_EQ(screen()->view<MemoryDatePicker>("datePicker").date(), kNow);
}

TEST_F(AgeGateScreen, CannotBeSwipedAway) {
  startAndForgetLines();
  EXPECT_FALSE(gate->swipeAway());
  EXPECT_TRUE(gate->isOnScreen());
}

TEST_F(AgeGateScreen, CannotBeConfirmedBeforeADateWasPicked) {
  startAndForgetLines();
  EXPECT_FALSE(gate->tap("confirmBtn"));
  EXPECT_THAT(lines(), IsEmpty());
  EXPECT_TRUE(gate->isOnScreen());
}

TEST_F(AgeGateScreen, CanBeConfirmedFromTheFirstPickOn) {
  startAndForgetLines();
  EXPECT_TRUE(gate->pick("datePicker", 0));
  EXPECT_TRUE(gate->view<MemoryButton>("confirmBtn").isEnabled());
  EXPECT_TRUE(gate->pick("datePicker", kNow + kDay));
  EXPECT_THAT(lines(), ElementsAre("screen1.confirmBtn.setEnabled true",
                                   "screen1.confirmBtn.setEnabled true"));
}

TEST_F(AgeGateScreen, CanBeConfirmedWithTodayOncePicked) {
  startAndForgetLines(0);
  EXPECT_TRUE(gate->pick("datePicker", kNow));
  EXPECT_TRUE(gate->tap("confirmBtn"));
  EXPECT_EQ(completions, 1);
}

TEST_F(AgeGateScreen, OpensItsPolicyLinksWithTheSystem) {
  startAndForgetLines();
  EXPECT_EQ(gate->view<MemoryTextView>("tos").delegate(), nullptr);
  EXPECT_TRUE(gate->tapLink("tos", 0));
  EXPECT_TRUE(gate->tapLink("tos", 32));
  EXPECT_FALSE(gate->tapLink("tos", 15));
  EXPECT_THAT(platform.application().opened,
              ElementsAre("https://example.com/privacy", "https://example.com/terms"));
}

TEST_F(AgeGateScreen, OpensALinkWithMailtoInItWithTheSystemToo) {
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, nullptr, [&](ViewController& screen) { contacted.push_back(&screen); }, theme,
      "mailto:privacy@example.com", "");
  EXPECT_TRUE(screen()->tapLink("tos", 3));
  EXPECT_THAT(platform.application().opened, ElementsAre("mailto:privacy@example.com"));
  EXPECT_THAT(contacted, IsEmpty());
}

TEST_F(AgeGateScreen, LetsAnOldEnoughUserThroughAtOnce) {
  startAndForgetLines();
  platform.transitions().setByHand(true);
  confirm(kEighteenYearsAgo);
  EXPECT_THAT(lines(), ElementsAre("screen1.dismissViewController animated, no completion",
                                   "userDefaults.setBool true QV_AgeGate_Shown",
                                   "screen1.datePicker.date", "clock.timeIntervalSince1970",
                                   "calendar.yearsBetween 1132006400.0 1700000000.0"));
  EXPECT_EQ(platform.transitions().waiting(), 1u);  // the dismissal still runs
  EXPECT_EQ(completions, 1);
  EXPECT_THAT(flags(), UnorderedElementsAre(Pair("QV_AgeGate_Shown", true)));
}

TEST_F(AgeGateScreen, RefusesAUserUnderAge) {
  platform.mainBundle().info["CFBundleDisplayName"] = std::string("Notes");
  startAndForgetLines();
  confirm(kEighteenYearsAgo + kDay);
  EXPECT_THAT(
      lines(),
      ElementsAre(
          "screen1.dismissViewController animated, no completion",
          "userDefaults.setBool true QV_AgeGate_Shown", "screen1.datePicker.date",
          "clock.timeIntervalSince1970", "calendar.yearsBetween 1132092800.0 1700000000.0",
          "userDefaults.setBool true QV_AgeGate_Blocked",
          "libraryBundle.URLForResource QV_Commons_iOS.bundle",
          "bundles.bundleWithURL /library/QV_Commons_iOS.bundle",
          "layoutLoader.initWithNibName screen2 QV_AgeGateRefusedViewController resourceBundle",
          "systemVersion.isAtLeast 13.0.0", "screen.userInterfaceStyle",
          "systemVersion.isAtLeast 13.0.0", "screen2.setModalInPresentation true",
          "screen.userInterfaceStyle", "screen2.setOverrideUserInterfaceStyle light",
          "home.presentViewController screen2 animated, no completion",
          "screen2.load QV_AgeGateRefusedViewController",
          "screen2.bg.setBackgroundColor 1.0 0.0 0.0 1.0", "screen2.bg.setCornerRadius 8.0",
          "screen2.bg.setClipsToBounds true", "screen2.tos.attributedText",
          "screen2.tos.attributedText.addLink \"https://example.com/privacy\" 0 14",
          "screen2.tos.attributedText.addLink \"https://example.com/terms\" 17 16",
          "screen2.tos.setLinkTextAttributes 0.5 0.0 0.5 1.0", "screen2.tos.setAttributedText",
          "screen2.tos.setTextColor 0.25 0.5 0.75 1.0", "screen2.contact.attributedText",
          "screen2.contact.attributedText.addLink \"mailto\" 38 22",
          "screen2.contact.setLinkTextAttributes 0.5 0.0 0.5 1.0",
          "screen2.contact.setAttributedText", "screen2.contact.setTextColor 0.25 0.5 0.75 1.0",
          "screen2.contact.setDelegate", "screen2.header.setTextColor 0.25 0.5 0.75 1.0",
          "screen2.header.text", "mainBundle.objectForInfoDictionaryKey CFBundleDisplayName",
          "screen2.header.setText \"We’re sorry, Notes isn’t available to you\""));
  EXPECT_EQ(completions, 0);
  EXPECT_THAT(flags(), UnorderedElementsAre(Pair("QV_AgeGate_Shown", true),
                                            Pair("QV_AgeGate_Blocked", true)));
}

TEST_F(AgeGateScreen, HandsItsThemeLinksAndHandlerToTheRefusal) {
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

TEST_F(AgeGateScreen, PinsTheRefusalToTheLookOfThatMoment) {
  startAndForgetLines();
  platform.device().style = UserInterfaceStyle::dark;
  confirm(kNow);
  platform.device().style = UserInterfaceStyle::light;
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::dark);
}

TEST_F(AgeGateScreen, NeitherPinsTheRefusalNorMakesItModalBeforeVersionThirteen) {
  platform.device().versionNumber = {12, 4, 0};
  startAndForgetLines();
  confirm(kNow);
  EXPECT_FALSE(screen()->isModalInPresentation());
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::unspecified);
  EXPECT_THAT(lines(), testing::Not(Contains("screen.userInterfaceStyle")));
}

TEST_F(AgeGateScreen, IsNotPinnedItself) {
  start();
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::unspecified);
}

TEST_F(AgeGateScreen, AllowsEveryDateThatCanBePickedForAMinimumOfZero) {
  startAndForgetLines(0);
  confirm(kNow + 10 * 366 * kDay);  // the picker stays at its maximum, a year from now
  EXPECT_THAT(lines(), Contains("calendar.yearsBetween 1731622400.0 1700000000.0"));
  EXPECT_EQ(completions, 0);  // a whole year ahead, to the second: -1
  EXPECT_TRUE(flags().at("QV_AgeGate_Blocked"));
}

TEST_F(AgeGateScreen, AllowsADateAheadOnceTimeHasPassedForAMinimumOfZero) {
  startAndForgetLines(0);
  platform.clock().now = kNow + 1;  // between loading and confirming
  confirm(kNow + 10 * 366 * kDay);
  EXPECT_EQ(completions, 1);
}

TEST_F(AgeGateScreen, AllowsEveryDateForANegativeMinimum) {
  startAndForgetLines(-1);
  confirm(kNow + 10 * 366 * kDay);
  EXPECT_EQ(completions, 1);
}

TEST_F(AgeGateScreen, RefusesAFutureDateForAPositiveMinimum) {
  startAndForgetLines(1);
  confirm(kNow + kDay);
  EXPECT_EQ(completions, 0);
  EXPECT_TRUE(flags().at("QV_AgeGate_Blocked"));
}

TEST_F(AgeGateScreen, SkipsAnAbsentCompletion) {
  QV_AgeGateHelper::startAgeGateProcess(home, 18, nullptr, nullptr, theme, "", "");
  gate = screen();
  confirm(0);
  EXPECT_THAT(flags(), UnorderedElementsAre(Pair("QV_AgeGate_Shown", true)));
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(AgeGateScreen, WritesBothFlagsAndShowsNothingWithoutAHost) {
  const auto alone = QV_AgeGateViewController::create(platform.platform());
  screen()->load();
  forgetLines();
  alone->onConfirmPressed();  // the picker shows now, the minimum is 16
  EXPECT_THAT(
      lines(),
      ElementsAre("screen1.dismissViewController animated, no completion",
                  "userDefaults.setBool true QV_AgeGate_Shown", "screen1.datePicker.date",
                  "clock.timeIntervalSince1970", "calendar.yearsBetween 1700000000.0 1700000000.0",
                  "userDefaults.setBool true QV_AgeGate_Blocked",
                  "libraryBundle.URLForResource QV_Commons_iOS.bundle",
                  "bundles.bundleWithURL /library/QV_Commons_iOS.bundle",
                  "layoutLoader.initWithNibName screen2 QV_AgeGateRefusedViewController "
                  "resourceBundle",
                  "systemVersion.isAtLeast 13.0.0", "screen.userInterfaceStyle",
                  "systemVersion.isAtLeast 13.0.0", "screen2.setModalInPresentation true",
                  "screen.userInterfaceStyle", "screen2.setOverrideUserInterfaceStyle light"));
  EXPECT_EQ(screen()->name(), "screen1");  // the refusal is gone
}

TEST_F(AgeGateScreen, IsAskedOnceInTheLifeOfTheApp) {
  startAndForgetLines();
  confirm(kEighteenYearsAgo);
  start();
  start();
  EXPECT_EQ(completions, 3);
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(AgeGateScreen, RefusesForGood) {
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
