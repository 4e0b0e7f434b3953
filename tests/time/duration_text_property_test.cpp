// Reading what was written gives the duration back. One million random durations; 100 million where
// the environment variable QV_LONG_TESTS is 1.

#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "qv_commons/time/time_helper.h"

namespace qv_commons {
namespace {

// The durations whose hour count fits 32 bits.
constexpr std::int64_t kFirst = -2147483648LL * 3600 - 3599;
constexpr std::int64_t kLast = 2147483647LL * 3600 + 3599;

int countOfRandomDurations() {
  const char* longTests = std::getenv("QV_LONG_TESTS");
  return longTests != nullptr && std::string_view(longTests) == "1" ? 100'000'000 : 1'000'000;
}

// Without a message while all is well, because a check by GoogleTest each time takes far longer
// than what is checked.
void expectReadBack(std::int64_t seconds) {
  const std::string text = QV_TimeHelper::secondsToHms(seconds);
  if (QV_TimeHelper::tryHmsToSeconds(text) != seconds) ADD_FAILURE() << seconds << " is " << text;
}

TEST(DurationRoundTrip, HoldsAtEveryBoundary) {
  std::vector<std::int64_t> around = {0, kFirst, kLast};
  for (const std::int64_t unit : {10LL, 60LL, 600LL, 3600LL, 36000LL, 86400LL, 360000LL}) {
    around.push_back(unit);
    around.push_back(-unit);
  }
  for (std::int64_t hours = 1; hours <= 1'000'000'000; hours *= 10) {
    around.push_back(hours * 3600);
    around.push_back(-hours * 3600);
  }
  for (int bits = 0; bits < 43; ++bits) {
    around.push_back(std::int64_t{1} << bits);
    around.push_back(-(std::int64_t{1} << bits));
  }
  for (const std::int64_t middle : around) {
    for (std::int64_t seconds = middle - 61; seconds <= middle + 61; ++seconds) {
      if (kFirst <= seconds && seconds <= kLast) expectReadBack(seconds);
    }
  }
}

TEST(DurationRoundTrip, HoldsForEverySecondOfTwoDaysEitherSide) {
  for (std::int64_t seconds = -172800; seconds <= 172800; ++seconds) expectReadBack(seconds);
}

TEST(DurationRoundTrip, HoldsForRandomDurations) {
  std::mt19937_64 random(20240229);
  std::uniform_int_distribution<std::int64_t> any(kFirst, kLast);
  std::uniform_int_distribution<int> bits(0, 40);
  for (int count = countOfRandomDurations(); count > 0; --count) {
    expectReadBack(any(random));
    expectReadBack(any(random) >> bits(random));
  }
}

}  // namespace
}  // namespace qv_commons
