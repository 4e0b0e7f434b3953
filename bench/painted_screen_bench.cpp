// From the call of a service to the end of the first painting of its screen: in a process that is
// already running, and in one that has just started.
#include <QProcess>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "bench/contest.h"
#include "bench/screens.h"

namespace qv_commons::bench {
namespace {

using Clock = std::chrono::steady_clock;

// What is measured; a function of its own for profilers.
template <class Screen>
[[gnu::noinline]] void callAndPaint(Screen& screen) {
  screen.open();
  QCoreApplication::processEvents();
}

// --- In a process that is running

template <class Screen>
void runningProcess(benchmark::State& state) {
  startQt();
  Window window;
  Screen screen(window);
  for (auto _ : state) {
    callAndPaint(screen);
    state.PauseTiming();
    screen.close();
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
  if (window.paintings != state.iterations()) state.SkipWithError("not one painting a call");
}

// --- In a process that has just started

double millisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Prints how long the screen took to come up, in a process that has done nothing before; fails
// if its window was not painted exactly once.
template <class Screen>
void showFirst() {
  startQt();
  Window window;
  Screen screen(window);
  const auto atCall = Clock::now();
  callAndPaint(screen);
  const double milliseconds = millisecondsSince(atCall);
  if (window.paintings != 1) std::_Exit(1);
  std::printf("%f\n", milliseconds);
  std::fflush(stdout);
  std::_Exit(0);
}

// What a process of this program prints that shows the screen of that name and nothing else.
double timeOfProcess(const char* screen) {
  QProcess process;
  process.start("/proc/self/exe", {"--first-screen", screen});
  process.waitForFinished();
  return process.readAllStandardOutput().trimmed().toDouble();
}

template <class Screen>
void freshProcess(benchmark::State& state) {
  for (auto _ : state) {
    const double milliseconds = timeOfProcess(Screen::kName);
    if (milliseconds == 0) state.SkipWithError("the process showed nothing");
    state.SetIterationTime(milliseconds / 1000);
  }
}

template <class... Screens>
struct Registry {
  static void addAll() {
    const auto add = [](const char* kind, const char* name, void (*run)(benchmark::State&)) {
      return benchmark::RegisterBenchmark((std::string(kind) + "/" + name).c_str(), run);
    };
    (add("call to painted screen", Screens::kName, runningProcess<Screens>), ...);
    (add("first painted screen of a process", Screens::kName, freshProcess<Screens>)
         ->Iterations(3)
         ->UseManualTime(),
     ...);
  }

  static void show(std::string_view name) {
    ((name == Screens::kName ? showFirst<Screens>() : void()), ...);
  }
};

using All = Registry<AgeGate, BareAgeGate, Refusal, BareRefusal, SupportMail, BareSupportMail>;

}  // namespace

void addPaintedScreenContests() {
  All::addAll();
}

void showFirstScreen(std::string_view name) {
  All::show(name);
}

}  // namespace qv_commons::bench
