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
using test::kNow;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class AgeGateScreen : public test::AgeGateFixture {
 protected:
  void startAndForgetLines(std::int64_t minimumAge = 18) {
    start(minimumAge);
    gate = screen();
    forgetLines();
  }

  memory::MemoryScreen* gate = nullptr;
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
            "Only used to check your age, never kept.");
}

TEST_F(AgeGateScreen, ReadsTheThemeWhenItLoadsAndNeverAgain) {
  startAndForgetLines();
  theme->textColor = {0, 0, 0};
  gate->pick("datePicker", {});
  EXPECT_THAT(lines(), ElementsAre("screen1.confirmBtn.setEnabled true"));
  EXPECT_EQ(gate->view<MemoryLabel>("header").textColor(), test::kText);
}

TEST_F(AgeGateScreen, SetsThePickerToNowAndItsMaximumToAYearFromNow) {
  platform.clock().time = instantAt(1709164800.25);  // 2024-02-29 00:00:00.25
  start();
  auto& picker = screen()->view<MemoryDatePicker>("datePicker");
  EXPECT_EQ(picker.date(), instantAt(1709164800.25));
  EXPECT_EQ(picker.maximumDate(), instantAt(1740700800.25));  // 2025-02-28 00:00:00.25
}

TEST_F(AgeGateScreen, ClearsTheMaximumIfTheCalendarGivesNone) {
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
  EXPECT_TRUE(gate->pick("datePicker", {}));
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

TEST_F(AgeGateScreen, IsNotPinnedItself) {
  start();
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::unspecified);
}

}  // namespace
}  // namespace qv_commons
