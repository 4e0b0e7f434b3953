#include "qv_commons/age_gate/birth_date.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

#include "qv_commons/platform/memory/memory_calendar.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

class BirthDates : public testing::Test {
 protected:
  std::int64_t age(double birth, double now) const {
    return ageInYears({instantAt(birth)}, instantAt(now), calendar);
  }

  AgeGateVerdict judge(double birth, double now, std::int64_t minimum) const {
    return judgeBirthDate({instantAt(birth)}, instantAt(now), calendar, minimum);
  }

  memory::Record record;
  memory::MemoryCalendar calendar{record};
};

// Born 2005-11-14 22:13:20.
TEST_F(BirthDates, CompletesAYearOnTheBirthdayToTheSecond) {
  EXPECT_EQ(age(1132006400, 1699999999), 17);    // 2023-11-14 22:13:19
  EXPECT_EQ(age(1132006400, 1699999999.5), 17);  // half a second early
  EXPECT_EQ(age(1132006400, 1700000000), 18);    // 2023-11-14 22:13:20
  EXPECT_EQ(age(1132006400, 1700000001), 18);
  EXPECT_EQ(age(1132006400, 1731622399), 18);  // 2024-11-14 22:13:19
  EXPECT_EQ(age(1132006400, 1731622400), 19);
}

TEST_F(BirthDates, CountsMonthsAndDaysNotLengths) {
  EXPECT_EQ(age(978307200, 1009756800), 0);   // 2001-01-01 to 2001-12-31
  EXPECT_EQ(age(978307200, 1009843200), 1);   // to 2002-01-01
  EXPECT_EQ(age(983404800, 1709164800), 22);  // 2001-03-01 to 2024-02-29
  EXPECT_EQ(age(983404800, 1709251200), 23);  // to 2024-03-01
}

// Born 2000-02-29 00:00:00.
TEST_F(BirthDates, CompletesALeapDaysYearOnThe28thInCommonYears) {
  EXPECT_EQ(age(951782400, 983318399), 0);     // 2001-02-27 23:59:59
  EXPECT_EQ(age(951782400, 983318400), 1);     // 2001-02-28 00:00:00
  EXPECT_EQ(age(951782400, 1709078400), 23);   // 2024-02-28
  EXPECT_EQ(age(951782400, 1709164799), 23);   // 2024-02-28 23:59:59
  EXPECT_EQ(age(951782400, 1709164800), 24);   // 2024-02-29
  EXPECT_EQ(age(951782400, 4107369600), 99);   // 2100-02-27; 2100 is a common year
  EXPECT_EQ(age(951782400, 4107456000), 100);  // 2100-02-28
}

TEST_F(BirthDates, KnowsDatesBefore1970) {
  EXPECT_EQ(age(-2208988800, 1700000000), 123);  // 1900-01-01
  EXPECT_EQ(age(-1, 0), 0);                      // 1969-12-31 23:59:59 to 1970-01-01
  EXPECT_EQ(age(-1, 31535999), 1);               // to 1970-12-31 23:59:59
  EXPECT_EQ(age(-1, 31535998), 0);
  EXPECT_EQ(age(-2203977600, -2172441600), 1);  // 1900-02-28 to 1901-02-28
}

TEST_F(BirthDates, GivesFutureDatesZeroForAYearAndThenLess) {
  EXPECT_EQ(age(1700000000, 1700000000), 0);
  EXPECT_EQ(age(1700000001, 1700000000), 0);
  EXPECT_EQ(age(1731622399, 1700000000), 0);   // 2024-11-14 22:13:19
  EXPECT_EQ(age(1731622400, 1700000000), -1);  // a whole year ahead
  EXPECT_EQ(age(1763158399, 1700000000), -1);
  EXPECT_EQ(age(1763158400, 1700000000), -2);  // 2025-11-14 22:13:20
}

TEST_F(BirthDates, CountsAThousandYears) {
  EXPECT_EQ(age(-30610224000, 951782400), 1000);  // 1000-01-01 to 2000-02-29
  EXPECT_EQ(age(951782400, -30610224000), -1000);
}

TEST_F(BirthDates, AllowsExactlyTheMinimumAge) {
  EXPECT_EQ(judge(1132006400, 1700000000, 18), AgeGateVerdict::allowed);
  EXPECT_EQ(judge(1132006400, 1699999999, 18), AgeGateVerdict::refused);
  EXPECT_EQ(judge(1132006400 + 86400, 1700000000, 18), AgeGateVerdict::refused);  // a day short
}

TEST_F(BirthDates, RefusesFutureDatesForAnyPositiveMinimum) {
  EXPECT_EQ(judge(1700000001, 1700000000, 1), AgeGateVerdict::refused);
  EXPECT_EQ(judge(1700000001, 1700000000, 0), AgeGateVerdict::allowed);
  EXPECT_EQ(judge(1700000001, 1700000000, -5), AgeGateVerdict::allowed);
  EXPECT_EQ(judge(1731622400, 1700000000, 0), AgeGateVerdict::refused);  // -1
  EXPECT_EQ(judge(1731622400, 1700000000, -1), AgeGateVerdict::allowed);
}

TEST_F(BirthDates, ComparesTheWholeRangeOfMinimums) {
  EXPECT_EQ(judge(0, 1700000000, std::numeric_limits<std::int64_t>::max()),
            AgeGateVerdict::refused);
  EXPECT_EQ(judge(0, 1700000000, std::numeric_limits<std::int64_t>::min()),
            AgeGateVerdict::allowed);
}

TEST_F(BirthDates, AsksTheCalendarOnce) {
  age(0, 31536000);
  EXPECT_THAT(record.lines(), ElementsAre("calendar.yearsBetween 0.0 31536000.0"));
}

TEST_F(BirthDates, StopsIfTheCalendarCannotTell) {
  const char* message = "ageInYears: the calendar gives no years between birth and now";
  EXPECT_DEATH(age(kNotANumber, 0), message);
  EXPECT_DEATH(age(0, kNotANumber), message);
  EXPECT_DEATH(age(-kInfinity, 0), message);
  EXPECT_DEATH(age(0, 1e300), message);
  calendar.available = false;
  EXPECT_DEATH(judge(0, 1, 16), message);
}

// The two instants are of different types, so that they can't be passed in each other's place.
static_assert(!std::is_convertible_v<Instant, BirthDate>);
static_assert(!std::is_convertible_v<BirthDate, Instant>);
static_assert(!std::is_convertible_v<double, Instant>);

}  // namespace
}  // namespace qv_commons
