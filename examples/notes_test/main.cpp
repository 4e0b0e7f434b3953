#include <gtest/gtest.h>

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/qv_commons.h"

using namespace qv_commons;

// The app's own code, which knows nothing of the test.
bool askedForAge(const std::shared_ptr<ViewController>& screen, bool& allowed) {
  QV_AgeGateHelper::startAgeGateProcess(
      screen, 16, [&] { allowed = true; }, nullptr, QV_AgeGateColorTheme::defaultTheme(),
      "https://example.com/privacy", "https://example.com/terms");
  return !allowed;
}

TEST(Notes, LetsInWhoeverIsOldEnoughAndDoesNotAskAgain) {
  memory::MemoryPlatform memory;
  const ScopedPlatform scope(memory.platform());
  memory.clock().time = memory::utcDate(2026, 11, 20);
  const auto home = memory.makeViewController("home");

  bool allowed = false;
  EXPECT_TRUE(askedForAge(home, allowed));
  memory::MemoryScreen& gate = *memory.viewControllers().lastScreen();
  EXPECT_TRUE(gate.pick("datePicker", memory::utcDate(2010, 11, 20)));
  EXPECT_TRUE(gate.tap("confirmBtn"));
  EXPECT_TRUE(allowed);

  EXPECT_FALSE(askedForAge(home, allowed));
}
