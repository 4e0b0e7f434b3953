// Who keeps whom alive: most telling with AddressSanitizer.
#include "tests/age_gate/age_gate_fixture.h"

namespace qv_commons {
namespace {

using test::kEighteenYearsAgo;
using test::kNow;
using testing::ElementsAre;

class AgeGateLifetime : public test::AgeGateFixture {
 protected:
  // What the user does, without keeping the screen alive meanwhile.
  void confirm(Instant birth) {
    memory::MemoryScreen& shown = *screen();
    shown.pick("datePicker", birth);
    shown.tap("confirmBtn");
  }
};

TEST_F(AgeGateLifetime, TheScreenOutlivesItsOwnDismissal) {
  start();
  confirm(kEighteenYearsAgo);
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(screen(), nullptr);
}

TEST_F(AgeGateLifetime, TheRefusedScreenReplacesItAndItIsGone) {
  start();
  const std::weak_ptr<ViewController> gate = screen()->retained();
  confirm(kNow);
  EXPECT_TRUE(gate.expired());
  EXPECT_EQ(home->presentedViewController(), &screen()->controller());
}

TEST_F(AgeGateLifetime, TheCompletionRunsWhileTheScreenLives) {
  std::weak_ptr<ViewController> gate;
  bool lived = false;
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, [&] { lived = !gate.expired(); }, nullptr, theme, "", "");
  gate = screen()->retained();
  confirm(kEighteenYearsAgo);
  EXPECT_TRUE(lived);
  EXPECT_TRUE(gate.expired());
}

TEST_F(AgeGateLifetime, TheCompletionMayGiveUpTheHostsScreen) {
  std::weak_ptr<ViewController> host = home;
  auto state = std::make_shared<int>(0);
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18,
      [this, state] {
        home.reset();
        ++*state;
      },
      nullptr, theme, "", "");
  confirm(kEighteenYearsAgo);
  EXPECT_EQ(*state, 1);
  EXPECT_TRUE(host.expired());
  EXPECT_EQ(state.use_count(), 1);  // the closure is gone with the screen
}

TEST_F(AgeGateLifetime, TheCompletionMayTakeItselfOutOfTheScreen) {
  auto state = std::make_shared<int>(0);
  QV_AgeGateViewController* gate = nullptr;
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18,
      [&gate, state] {
        gate->completionHandler = nullptr;
        ++*state;
      },
      nullptr, theme, "", "");
  gate = static_cast<QV_AgeGateViewController*>(home->presentedViewController());
  confirm(kEighteenYearsAgo);
  EXPECT_EQ(*state, 1);
}

TEST_F(AgeGateLifetime, TheCompletionMayStartTheAgeGateAgain) {
  int inner = 0;
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18,
      [&] {
        QV_AgeGateHelper::startAgeGateProcess(
            home, 18, [&] { ++inner; }, nullptr, theme, "", "");
      },
      nullptr, theme, "", "");
  confirm(kEighteenYearsAgo);
  EXPECT_EQ(inner, 1);
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(AgeGateLifetime, TheCompletionMayClearTheFlagsAndStartTheAgeGateAgain) {
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18,
      [&] {
        platform.userDefaults().values.clear();
        start(21);
      },
      nullptr, theme, "", "");
  confirm(kEighteenYearsAgo);
  EXPECT_EQ(screen()->name(), "screen2");
  EXPECT_EQ(home->presentedViewController(), &screen()->controller());
}

TEST_F(AgeGateLifetime, TheContactHandlerMayTakeTheRefusalAway) {
  setFlags(true, true);
  auto state = std::make_shared<int>(0);
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, nullptr,
      [state](ViewController& refusal) {
        refusal.dismissViewController(false, nullptr);
        ++*state;
      },
      theme, "", "");
  memory::MemoryScreen& shown = *screen();
  shown.tapLink("contact", 38);
  EXPECT_EQ(*state, 1);
  EXPECT_EQ(screen(), nullptr);
  EXPECT_EQ(state.use_count(), 1);
}

TEST_F(AgeGateLifetime, TheContactHandlerCanKeepTheRefusal) {
  setFlags(true, true);
  std::shared_ptr<ViewController> kept;
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, nullptr, [&](ViewController& refusal) { kept = refusal.retained(); }, theme, "",
      "");
  screen()->tapLink("contact", 38);
  home->dismissViewController(false, nullptr);
  EXPECT_EQ(kept.get(), &screen()->controller());
  kept.reset();
  EXPECT_EQ(screen(), nullptr);
}

TEST_F(AgeGateLifetime, TheClosuresAndTheThemeAreReleasedWithTheScreen) {
  auto state = std::make_shared<int>(0);
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, [state] {}, [state](ViewController&) {}, theme, "", "");
  EXPECT_EQ(state.use_count(), 3);
  EXPECT_EQ(theme.use_count(), 2);
  screen()->dismissViewController(false, nullptr);
  EXPECT_EQ(state.use_count(), 1);
  EXPECT_EQ(theme.use_count(), 1);
}

TEST_F(AgeGateLifetime, TheScreenLivesUntilItsDismissalHasEnded) {
  platform.transitions().setByHand(true);
  start();
  confirm(kEighteenYearsAgo);
  EXPECT_NE(screen(), nullptr);
  platform.transitions().runAll();
  EXPECT_EQ(screen(), nullptr);
}

TEST(AgeGateLifetimeWithoutAHost, APlatformTakesItsScreensDown) {
  std::weak_ptr<ViewController> host;
  {
    memory::MemoryPlatform platform;
    const ScopedPlatform scope(platform.platform());
    const auto home = platform.makeViewController("home");
    host = home;
    QV_AgeGateHelper::startAgeGateProcess(home, 18, nullptr, nullptr,
                                          QV_AgeGateColorTheme::defaultTheme(), "", "");
    EXPECT_EQ(home.use_count(), 3);  // here, in the gate, and for as long as it presents it
  }
  EXPECT_TRUE(host.expired());
}

}  // namespace
}  // namespace qv_commons
