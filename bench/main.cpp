// Everything that the library is timed at, in one run. With --check, the contenders' answers are
// compared and nothing is timed.
#include <string_view>

#include "bench/contest.h"

int main(int count, char** arguments) {
  using namespace qv_commons::bench;
  addDurationContests();
  addDurationReadingContests();
  addBase64Contests();
  addMailBodyContests();
  addDecimalTextContests();
  addTopViewControllerContests();
  addReturningUserContest();
  if (count > 1 && std::string_view(arguments[1]) == "--check") return 0;
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  benchmark::RunSpecifiedBenchmarks();
}
