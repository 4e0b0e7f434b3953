// What the age gate costs on the desktop: a returning user's start, and the way to the screen.
#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>
#include <benchmark/benchmark.h>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

namespace {

using qv_commons::QV_AgeGateColorTheme;
using qv_commons::QV_AgeGateHelper;
using qv_commons::desktop::DesktopPlatform;
using qv_commons::desktop::DesktopSettings;
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
BENCHMARK(returningUsersReads)->Unit(benchmark::kMicrosecond);

void confirmWithRefusal(benchmark::State& state) {
  const QTemporaryDir folder;
  SqliteUserDefaults defaults(folder.path().toStdString(), "com.example.notes", nullptr);
  for (auto _ : state) {
    defaults.setBool(true, "QV_AgeGate_Shown");
    defaults.setBool(true, "QV_AgeGate_Blocked");
    defaults.commit();
  }
}
BENCHMARK(confirmWithRefusal)->Unit(benchmark::kMicrosecond);

// From the call to the end of the first painting.
void startToPaintedScreen(benchmark::State& state) {
  const QTemporaryDir folder;
  QWidget window;
  window.resize(390, 844);
  window.show();
  DesktopSettings settings;
  settings.dataDirectory = folder.path().toStdString();
  settings.calendar = {"en-US", "UTC"};
  settings.userInterfaceStyle = qv_commons::UserInterfaceStyle::light;
  const DesktopPlatform desktop(settings);
  const qv_commons::ScopedPlatform scope(desktop.platform());
  const auto host = desktop.viewController(window);
  for (auto _ : state) {
    QV_AgeGateHelper::startAgeGateProcess(host, 16, nullptr, nullptr,
                                          QV_AgeGateColorTheme::defaultTheme(), "", "");
    QCoreApplication::processEvents();
    state.PauseTiming();
    host->dismissViewController(false, nullptr);
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
}
BENCHMARK(startToPaintedScreen)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
  const QApplication application(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
}
