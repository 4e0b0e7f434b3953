// What the age gate costs each launch of an app whose user was let through before, beside the two
// look-ups that it can't do without.
#include <map>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/memory/memory_platform.h"

#include "bench/contest.h"

namespace qv_commons::bench {
namespace {

// The memory platform of a user who was let through, with a host's arguments.
class Launch {
 public:
  Launch() {
    platform_.userDefaults().values["QV_AgeGate_Shown"] = true;
    platform_.record().setPaused(true);
  }

  std::int64_t start() {
    QV_AgeGateHelper::startAgeGateProcess(
        home_, 18, [this] { ++completions_; }, [](ViewController&) {}, theme_,
        "https://example.com/privacy", "https://example.com/terms");
    return std::exchange(completions_, 0);
  }

 private:
  memory::MemoryPlatform platform_;
  ScopedPlatform scope_{platform_.platform()};
  std::shared_ptr<ViewController> home_ = platform_.makeViewController("home");
  std::shared_ptr<QV_AgeGateColorTheme> theme_ = QV_AgeGateColorTheme::defaultTheme();
  std::int64_t completions_ = 0;
};

std::int64_t byLibrary(int) {
  static Launch launch;
  return launch.start();
}

std::int64_t byTwoLookUps(int) {
  static const std::map<std::string, bool, std::less<>> values = {{"QV_AgeGate_Shown", true}};
  const auto shown = values.find("QV_AgeGate_Shown");
  const auto blocked = values.find("QV_AgeGate_Blocked");
  return shown != values.end() && shown->second && blocked == values.end() ? 1 : 0;
}

}  // namespace

void addReturningUserContest() {
  Contest<int>("returning user's start", "memory adapter", {0})
      .enter("QV Commons", byLibrary)
      .limit("the two look-ups", byTwoLookUps);
}

}  // namespace qv_commons::bench
