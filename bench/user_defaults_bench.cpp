// What the age gate's outcome costs on the desktop: read at a returning user's start, written at
// the confirm.
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <string>

#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

namespace {

using qv_commons::desktop::SqliteUserDefaults;

// The store is opened anew each time, as by a process that has just started.
void returningUsersReads(benchmark::State& state) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  SqliteUserDefaults(path, "com.example.notes", nullptr).setBool(true, "QV_AgeGate_Shown");
  for (auto _ : state) {
    const SqliteUserDefaults defaults(path, "com.example.notes", nullptr);
    benchmark::DoNotOptimize(defaults.boolForKey("QV_AgeGate_Shown"));
    benchmark::DoNotOptimize(defaults.boolForKey("QV_AgeGate_Blocked"));
  }
}
BENCHMARK(returningUsersReads)
    ->Name("returning user's start on the desktop/reads")
    ->Unit(benchmark::kMicrosecond);

void confirmWithRefusal(benchmark::State& state) {
  const QTemporaryDir folder;
  SqliteUserDefaults defaults(folder.path().toStdString(), "com.example.notes", nullptr);
  for (auto _ : state) {
    defaults.setBool(true, "QV_AgeGate_Shown");
    defaults.setBool(true, "QV_AgeGate_Blocked");
    defaults.commit();
  }
}
BENCHMARK(confirmWithRefusal)
    ->Name("returning user's start on the desktop/confirm's writes")
    ->Unit(benchmark::kMicrosecond);

}  // namespace
