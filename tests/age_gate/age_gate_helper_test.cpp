#include "qv_commons/age_gate/age_gate_helper.h"

#include <algorithm>
#include <limits>

#include "tests/age_gate/age_gate_fixture.h"
#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using memory::MemoryController;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class AgeGateHelper : public test::AgeGateFixture {
 protected:
  template <class Screen>
  Screen& shown() {
    return static_cast<Screen&>(*home->presentedViewController());
  }
};

const std::vector<std::string> kFirstStart = {
    "userDefaults.boolForKey QV_AgeGate_Shown",
    "libraryBundle.URLForResource QV_Commons_iOS.bundle",
    "bundles.bundleWithURL /library/QV_Commons_iOS.bundle",
    "viewControllers.initWithNibName screen1 QV_AgeGateViewController resourceBundle",
    "device.isSystemVersionAtLeast 13",
    "device.userInterfaceStyle",
    "device.isSystemVersionAtLeast 13",
    "screen1.setModalInPresentation true",
    "home.presentViewController screen1 animated, no completion",
    "screen1.load QV_AgeGateViewController",
    "screen1.bg.setBackgroundColor 1.0 0.0 0.0 1.0",
    "screen1.bg.setCornerRadius 8.0",
    "screen1.bg.setClipsToBounds true",
    "screen1.header.setTextColor 0.25 0.5 0.75 1.0",
    "screen1.subtitle.setTextColor 0.25 0.5 0.75 1.0",
    "screen1.confirmBtn.setCornerRadius 8.0",
    "screen1.confirmBtn.setClipsToBounds true",
    "screen1.confirmBtn.setEnabled false",
    "screen1.confirmBtn.setTitleColor 0.5 0.0 0.5 1.0 disabled",
    "screen1.confirmBtn.setTitleColor 0.0 0.0 1.0 1.0 normal",
    "screen1.confirmBtn.setBackgroundColor 0.0 1.0 0.0 1.0",
    "screen1.tos.textLength",
    "screen1.tos.addLinks \"https://example.com/privacy\" 0 14, \"https://example.com/terms\" 17 "
    "16, 0.5 0.0 0.5 1.0",
    "screen1.tos.setTextColor 0.25 0.5 0.75 1.0",
    "clock.now",
    "calendar.dateByAddingYears 1700000000.0 1",
    "screen1.datePicker.setMaximumDate 1731622400.0",
    "screen1.datePicker.setDate 1700000000.0"};

const std::vector<std::string> kLaterStartOfARefusedUser = {
    "userDefaults.boolForKey QV_AgeGate_Shown",
    "userDefaults.boolForKey QV_AgeGate_Blocked",
    "libraryBundle.URLForResource QV_Commons_iOS.bundle",
    "bundles.bundleWithURL /library/QV_Commons_iOS.bundle",
    "viewControllers.initWithNibName screen1 QV_AgeGateRefusedViewController resourceBundle",
    "device.isSystemVersionAtLeast 13",
    "device.userInterfaceStyle",
    "device.isSystemVersionAtLeast 13",
    "screen1.setModalInPresentation true",
    "home.presentViewController screen1 animated, no completion",
    "screen1.load QV_AgeGateRefusedViewController",
    "screen1.bg.setBackgroundColor 1.0 0.0 0.0 1.0",
    "screen1.bg.setCornerRadius 8.0",
    "screen1.bg.setClipsToBounds true",
    "screen1.tos.textLength",
    "screen1.tos.addLinks \"https://example.com/privacy\" 0 14, \"https://example.com/terms\" 17 "
    "16, 0.5 0.0 0.5 1.0",
    "screen1.tos.setTextColor 0.25 0.5 0.75 1.0",
    "screen1.contact.textLength",
    "screen1.contact.addLinks \"mailto\" 38 22, 0.5 0.0 0.5 1.0",
    "screen1.contact.setTextColor 0.25 0.5 0.75 1.0",
    "screen1.contact.setDelegate",
    "screen1.header.setTextColor 0.25 0.5 0.75 1.0",
    "screen1.header.text",
    "mainBundle.textForInfoDictionaryKey CFBundleDisplayName",
    "screen1.header.setText \"We’re sorry, Notes isn’t available to you\""};

std::vector<std::string> without(std::vector<std::string> lines,
                                 std::initializer_list<std::string> left) {
  std::erase_if(lines, [&](const std::string& line) {
    return std::find(left.begin(), left.end(), line) != left.end();
  });
  return lines;
}

TEST_F(AgeGateHelper, PresentsTheAgeGateAtTheFirstStart) {
  start();
  EXPECT_EQ(lines(), kFirstStart);
  EXPECT_EQ(completions, 0);
  EXPECT_EQ(home->presentedViewController(), &screen()->controller());
}

TEST_F(AgeGateHelper, HandsEverythingToTheAgeGateScreen) {
  start(18);
  auto& gate = shown<QV_AgeGateViewController>();
  EXPECT_EQ(gate.viewController, home);
  EXPECT_EQ(gate.minimumAgerequired, 18);
  EXPECT_EQ(gate.colorTheme, theme);
  EXPECT_EQ(gate.privacyLink, "https://example.com/privacy");
  EXPECT_EQ(gate.termsOfServiceLink, "https://example.com/terms");
  gate.completionHandler();
  EXPECT_EQ(completions, 1);
  gate.contactUsHandler(*home);
  EXPECT_THAT(contacted, ElementsAre(home.get()));
}

TEST_F(AgeGateHelper, HandsTheMinimumAgeOnUnchanged) {
  for (const std::int64_t minimum :
       {std::int64_t{0}, std::int64_t{-7}, std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min()}) {
    start(minimum);
    EXPECT_EQ(shown<QV_AgeGateViewController>().minimumAgerequired, minimum);
  }
}

// A controller that presents is kept alive; the age gate screen keeps it as well, for the refusal.
TEST_F(AgeGateHelper, KeepsTheHostsScreenAliveAsLongAsItPresents) {
  start();
  EXPECT_EQ(home.use_count(), 3);
  screen()->dismissViewController(false, nullptr);
  EXPECT_EQ(home.use_count(), 1);

  setFlags(true, true);
  start();
  EXPECT_EQ(home.use_count(), 2);
}

TEST_F(AgeGateHelper, MakesNothingModalBeforeVersionThirteen) {
  platform.device().version = "12.4";
  start();
  EXPECT_EQ(lines(), without(kFirstStart,
                             {"device.userInterfaceStyle", "screen1.setModalInPresentation true"}));
  EXPECT_FALSE(screen()->isModalInPresentation());
}

TEST_F(AgeGateHelper, LetsAUserThroughAtOnceWhoWasLetThroughBefore) {
  setFlags(true, false);
  start();
  EXPECT_EQ(completions, 1);
  EXPECT_THAT(lines(), ElementsAre("userDefaults.boolForKey QV_AgeGate_Shown",
                                   "userDefaults.boolForKey QV_AgeGate_Blocked"));
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(AgeGateHelper, DoesNothingForSuchAUserWithoutACompletion) {
  setFlags(true, false);
  QV_AgeGateHelper::startAgeGateProcess(home, 18, nullptr, nullptr, theme, "", "");
  EXPECT_THAT(lines(), ElementsAre("userDefaults.boolForKey QV_AgeGate_Shown",
                                   "userDefaults.boolForKey QV_AgeGate_Blocked"));
}

TEST_F(AgeGateHelper, ShowsTheRefusalAgainAtALaterStart) {
  platform.mainBundle().info["CFBundleDisplayName"] = "Notes";
  setFlags(true, true);
  start();
  EXPECT_EQ(lines(), kLaterStartOfARefusedUser);
  EXPECT_EQ(completions, 0);
}

TEST_F(AgeGateHelper, HandsTheRefusalItsFourFields) {
  setFlags(true, true);
  start();
  auto& refusal = shown<QV_AgeGateRefusedViewController>();
  EXPECT_EQ(refusal.colorTheme, theme);
  EXPECT_EQ(refusal.privacyLink, "https://example.com/privacy");
  EXPECT_EQ(refusal.termsOfServiceLink, "https://example.com/terms");
  refusal.contactUsHandler(refusal);
  EXPECT_THAT(contacted, ElementsAre(&refusal));
}

TEST_F(AgeGateHelper, DoesNotPinTheLookOfARefusalAtALaterStart) {
  platform.device().style = UserInterfaceStyle::dark;
  setFlags(true, true);
  start();
  EXPECT_EQ(screen()->overrideUserInterfaceStyle(), UserInterfaceStyle::unspecified);
  EXPECT_THAT(lines(), Not(Contains(testing::HasSubstr("setOverrideUserInterfaceStyle"))));
}

TEST_F(AgeGateHelper, LetsARefusalBeSwipedAwayBeforeVersionThirteenOnly) {
  platform.mainBundle().info["CFBundleDisplayName"] = "Notes";
  platform.device().version = "12.4";
  setFlags(true, true);
  start();
  EXPECT_EQ(lines(), without(kLaterStartOfARefusedUser,
                             {"device.userInterfaceStyle", "screen1.setModalInPresentation true"}));
  EXPECT_TRUE(screen()->swipeAway());

  platform.device().version = "13.0";
  start();
  EXPECT_FALSE(screen()->swipeAway());
}

TEST_F(AgeGateHelper, ShowsTheRefusalAtEveryLaterStart) {
  setFlags(true, true);
  for (int starts = 0; starts < 3; ++starts) start();
  EXPECT_EQ(completions, 0);
  EXPECT_THAT(lines(), Contains("home.presentViewController screen3 animated, no completion"));
}

TEST_F(AgeGateHelper, AsksAgainWhereOnlyTheFirstFlagWasCleared) {
  setFlags(false, true);
  start();
  EXPECT_EQ(lines(), kFirstStart);
}

TEST_F(AgeGateHelper, PresentsASecondGateWhileTheFirstIsUp) {
  start();
  start();
  EXPECT_THAT(lines(), Contains("home.presentViewController screen1 animated, no completion"));
  EXPECT_THAT(lines(), Contains("home.presentViewController screen2 animated, no completion"));
}

TEST_F(AgeGateHelper, WritesNoFlag) {
  start();
  setFlags(true, true);
  start();
  setFlags(true, false);
  start();
  EXPECT_THAT(lines(), Not(Contains(testing::StartsWith("userDefaults.setBool"))));
}

TEST_F(AgeGateHelper, LetsTheCompletionStartItAgain) {
  setFlags(true, false);
  int inner = 0;
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18,
      [&] {
        QV_AgeGateHelper::startAgeGateProcess(
            home, 18, [&] { ++inner; }, nullptr, theme, "", "");
      },
      nullptr, theme, "", "");
  EXPECT_EQ(inner, 1);
}

TEST_F(AgeGateHelper, TakesNothingFromTheHeapForAReturningUser) {
  setFlags(true, false);
  platform.record().setPaused(true);
  const test::AllocationCounter counter;
  start();
  EXPECT_EQ(counter.calls(), 0);
  EXPECT_EQ(completions, 1);
}

TEST_F(AgeGateHelper, StopsWhereTheHostGivesNoScreenOrNoTheme) {
  EXPECT_DEATH(QV_AgeGateHelper::startAgeGateProcess(nullptr, 18, nullptr, nullptr, theme, "", ""),
               "QV_AgeGateHelper: viewController is null");
  EXPECT_DEATH(QV_AgeGateHelper::startAgeGateProcess(home, 18, nullptr, nullptr, nullptr, "", ""),
               "QV_AgeGateHelper: colorTheme is null");
}

TEST_F(AgeGateHelper, StopsWhereTheLayoutIsMissing) {
  platform.resourceBundle().layouts.clear();
  EXPECT_DEATH(start(), "screen1: the bundle has no layout \"QV_AgeGateViewController\"");
  setFlags(true, true);
  EXPECT_DEATH(start(), "screen1: the bundle has no layout \"QV_AgeGateRefusedViewController\"");
}

TEST_F(AgeGateHelper, StopsWhereTheResourceBundleIsMissing) {
  platform.bundles().library().resources.clear();
  EXPECT_DEATH(start(), "screen1: the bundle has no layout \"QV_AgeGateViewController\"");
}

}  // namespace
}  // namespace qv_commons
