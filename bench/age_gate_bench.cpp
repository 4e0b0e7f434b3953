// What the age gate costs each launch of an app whose user was let through before, beside the two
// look-ups that it can't do without.
#include <benchmark/benchmark.h>
#include <map>
#include <string>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/age_gate/birth_date.h"
#include "qv_commons/platform/memory/memory_platform.h"

namespace {

using namespace qv_commons;

void BM_TwoBareLookUps(benchmark::State& state) {
  const std::map<std::string, bool, std::less<>> values = {{"QV_AgeGate_Shown", true}};
  for (auto _ : state) {
    const auto shown = values.find("QV_AgeGate_Shown");
    const auto blocked = values.find("QV_AgeGate_Blocked");
    benchmark::DoNotOptimize(shown != values.end() && shown->second && blocked == values.end());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_TwoBareLookUps);

void BM_ReturningUsersStart(benchmark::State& state) {
  memory::MemoryPlatform platform;
  const ScopedPlatform scope(platform.platform());
  platform.userDefaults().values["QV_AgeGate_Shown"] = true;
  platform.record().setPaused(true);
  const auto home = platform.makeViewController("home");
  const auto theme = QV_AgeGateColorTheme::defaultTheme();
  std::int64_t completions = 0;
  for (auto _ : state) {
    QV_AgeGateHelper::startAgeGateProcess(
        home, 18, [&completions] { ++completions; }, [](ViewController&) {}, theme,
        "https://example.com/privacy", "https://example.com/terms");
  }
  if (completions != state.iterations()) state.SkipWithError("a start did not complete");
}
BENCHMARK(BM_ReturningUsersStart);

void BM_AgeInYearsOnTheMemoryCalendar(benchmark::State& state) {
  memory::Record record;
  record.setPaused(true);
  const memory::MemoryCalendar calendar(record);
  double birth = 951782400;
  for (auto _ : state) {
    benchmark::DoNotOptimize(birth);
    benchmark::DoNotOptimize(ageInYears(birth, 1700000000, calendar));
  }
}
BENCHMARK(BM_AgeInYearsOnTheMemoryCalendar);

}  // namespace
