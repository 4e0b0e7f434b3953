// Everything that the library is timed at, in one run. With --check, the contenders' answers are
// compared and nothing is timed; with --first-screen NAME, one screen is.
#include <string_view>

#include "bench/contest.h"

int main(int count, char** arguments) {
  using namespace qv_commons::bench;
  const std::string_view mode = count > 1 ? arguments[1] : "";
  if (mode == "--first-screen" && count == 3) showFirstScreen(arguments[2]);
  addDurationContests();
  addDurationReadingContests();
  addBase64Contests();
  addMailBodyContests();
  addDecimalTextContests();
  addTopViewControllerContests();
  addReturningUserContest();
  addUserDefaultsContests();
  addPaintedScreenContests();
  if (mode == "--check") return 0;
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  benchmark::RunSpecifiedBenchmarks();
}
