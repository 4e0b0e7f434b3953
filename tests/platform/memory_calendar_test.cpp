// The memory adapter's calendar where the conformance of all doesn't reach: far from today.
#include "qv_commons/platform/memory/memory_calendar.h"

#include <gtest/gtest.h>
#include <limits>

namespace qv_commons::memory {
namespace {

// Expectations from Python's datetime, and before the year 1 by counting days.
TEST(UtcDate, IsMidnightOfThatDay) {
  const auto seconds = [](std::int64_t year, int month, int day) {
    return secondsSince1970(utcDate(year, month, day));
  };
  EXPECT_EQ(seconds(1970, 1, 1), 0);
  EXPECT_EQ(seconds(1969, 12, 31), -86400);
  EXPECT_EQ(seconds(2026, 11, 20), 1795132800);
  EXPECT_EQ(seconds(2000, 2, 29), 951782400);
  EXPECT_EQ(seconds(2000, 3, 1), 951868800);
  EXPECT_EQ(seconds(1900, 3, 1), -2203891200);
  EXPECT_EQ(seconds(1583, 1, 1), -12212553600);
  EXPECT_EQ(seconds(0, 3, 1), -62162035200);
  EXPECT_EQ(seconds(0, 1, 1), -62167219200);
  EXPECT_EQ(seconds(-1, 12, 31), -62167305600);
  EXPECT_EQ(seconds(-400, 2, 29), -74784902400);
}

class FarCalendar : public testing::Test {
 protected:
  std::optional<double> later(double date, int years) {
    const std::optional<Instant> later = calendar_.dateByAddingYears(instantAt(date), years);
    return later ? std::optional(secondsSince1970(*later)) : std::nullopt;
  }

  Record record_;
  MemoryCalendar calendar_{record_};
};

TEST_F(FarCalendar, KeepsALeapDayWhereTheYearHasOne) {
  constexpr double kLeapDay = 951782400;  // 2000-02-29
  EXPECT_EQ(later(kLeapDay, 4), 1078012800);
  EXPECT_EQ(later(kLeapDay, 100), 4107456000);  // 2100-02-28
  EXPECT_EQ(later(kLeapDay, 400), 13574563200);
  EXPECT_EQ(later(-74784902400, 100), -71629228800);  // -400-02-29 to -300-02-28
}

TEST_F(FarCalendar, HasNoDateTooFarAway) {
  EXPECT_EQ(later(0, std::numeric_limits<int>::max()), std::nullopt);
  EXPECT_EQ(later(0, std::numeric_limits<int>::min()), std::nullopt);
  EXPECT_EQ(later(1.1e13, 0), std::nullopt);
  EXPECT_EQ(later(1e13, 0), 1e13);
  EXPECT_EQ(calendar_.yearsBetween(instantAt(0), instantAt(-1.1e13)), std::nullopt);
}

}  // namespace
}  // namespace qv_commons::memory
