// What a Gregorian calendar in UTC of every adapter holds to, from 1583 on. `Adapter` has one in
// `calendar()`.
#pragma once

#include <gtest/gtest.h>
#include <limits>

#include "qv_commons/platform/calendar.h"

namespace qv_commons::test {

template <class Adapter>
class CalendarConformance : public testing::Test {
 protected:
  std::optional<std::int64_t> years(double from, double to) {
    return adapter_.calendar().yearsBetween(from, to);
  }
  std::optional<double> later(double date, int years) {
    return adapter_.calendar().dateByAddingYears(date, years);
  }

 private:
  Adapter adapter_;
};

TYPED_TEST_SUITE_P(CalendarConformance);

TYPED_TEST_P(CalendarConformance, CompletesAYearToTheSecond) {
  EXPECT_EQ(this->years(1132006400, 1699999999), 17);  // from 2005-11-14 22:13:20
  EXPECT_EQ(this->years(1132006400, 1700000000), 18);  // to 2023-11-14 22:13:20
}

TYPED_TEST_P(CalendarConformance, CompletesALeapDaysYearOnThe28thInCommonYears) {
  EXPECT_EQ(this->years(951782400, 983318399), 0);    // 2000-02-29 to 2001-02-27 23:59:59
  EXPECT_EQ(this->years(951782400, 983318400), 1);    // to 2001-02-28
  EXPECT_EQ(this->years(951782400, 1709164799), 23);  // to 2024-02-28 23:59:59
  EXPECT_EQ(this->years(951782400, 1709164800), 24);  // to 2024-02-29
}

TYPED_TEST_P(CalendarConformance, CountsBackwardsFromWholeYears) {
  EXPECT_EQ(this->years(1700000000, 1700000000), 0);
  EXPECT_EQ(this->years(1731622399, 1700000000), 0);   // 2024-11-14 22:13:19
  EXPECT_EQ(this->years(1731622400, 1700000000), -1);  // 2024-11-14 22:13:20
}

TYPED_TEST_P(CalendarConformance, KnowsDatesBefore1970) {
  EXPECT_EQ(this->years(-2208988800, 1700000000), 123);  // from 1900-01-01
  EXPECT_EQ(this->years(-2203977600, -2172441600), 1);   // 1900-02-28 to 1901-02-28
}

TYPED_TEST_P(CalendarConformance, AddsYears) {
  EXPECT_EQ(this->later(1700000000, 1), 1731622400);  // 2023-11-14 to 2024-11-14
  EXPECT_EQ(this->later(1700000000, 0), 1700000000);
  EXPECT_EQ(this->later(1731622400, -1), 1700000000);
}

TYPED_TEST_P(CalendarConformance, AddsAYearToALeapDay) {
  EXPECT_EQ(this->later(1709164800, 1), 1740700800);  // 2024-02-29 to 2025-02-28
  EXPECT_EQ(this->later(1709164800, 4), 1835395200);  // to 2028-02-29
}

TYPED_TEST_P(CalendarConformance, TellsNothingOfWhatIsNoDate) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double bad : {none, infinity, -infinity, 1e300, -1e300, 1e18, -1e18}) {
    EXPECT_EQ(this->years(bad, 0), std::nullopt) << bad;
    EXPECT_EQ(this->years(0, bad), std::nullopt) << bad;
    EXPECT_EQ(this->later(bad, 1), std::nullopt) << bad;
  }
}

REGISTER_TYPED_TEST_SUITE_P(CalendarConformance, CompletesAYearToTheSecond,
                            CompletesALeapDaysYearOnThe28thInCommonYears,
                            CountsBackwardsFromWholeYears, KnowsDatesBefore1970, AddsYears,
                            AddsAYearToALeapDay, TellsNothingOfWhatIsNoDate);

}  // namespace qv_commons::test
