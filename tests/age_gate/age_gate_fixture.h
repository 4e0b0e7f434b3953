// What the tests of the age gate's screens start from: a user without flags in front of a host's
// screen, a theme of five colours that are easy to tell apart, and both closures.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons::test {

inline constexpr Instant kNow = instantAt(1700000000);               // 2023-11-14 22:13:20 UTC
inline constexpr Instant kEighteenYearsAgo = instantAt(1132006400);  // 2005-11-14 22:13:20 UTC
inline constexpr Instant::duration kSecond(1);
inline constexpr Instant::duration kDay(86400);

inline const Color kBackground = {1, 0, 0};
inline const Color kButtonBackground = {0, 1, 0};
inline const Color kButtonText = {0, 0, 1};
inline const Color kText = {0.25, 0.5, 0.75};
inline const Color kPoliciesText = {0.5, 0, 0.5};

class AgeGateFixture : public testing::Test {
 protected:
  void start(std::int64_t minimumAge = 18) {
    QV_AgeGateHelper::startAgeGateProcess(
        home, minimumAge, [this] { ++completions; },
        [this](ViewController& screen) { contacted.push_back(&screen); }, theme,
        "https://example.com/privacy", "https://example.com/terms");
  }

  void setFlags(bool shown, bool blocked) {
    platform.userDefaults().values["QV_AgeGate_Shown"] = shown;
    platform.userDefaults().values["QV_AgeGate_Blocked"] = blocked;
  }

  memory::MemoryScreen* screen() { return platform.viewControllers().lastScreen(); }

  const std::vector<std::string>& lines() { return platform.record().lines(); }
  void forgetLines() { platform.record().clear(); }

  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
  std::shared_ptr<ViewController> home = platform.makeViewController("home");
  std::shared_ptr<QV_AgeGateColorTheme> theme = std::make_shared<QV_AgeGateColorTheme>(
      kBackground, kButtonBackground, kButtonText, kText, kPoliciesText);
  int completions = 0;
  std::vector<ViewController*> contacted;
};

}  // namespace qv_commons::test
