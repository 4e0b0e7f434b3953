// Conformance of Calendar: a Gregorian one in UTC, from 1583 on.
#pragma once

#include <limits>

#include "qv_commons/platform/calendar.h"

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class CalendarConformance : public Suite {
 protected:
  std::optional<std::int64_t> years(double from, double to) {
    return platform().calendar.yearsBetween(instantAt(from), instantAt(to));
  }
  std::optional<double> later(double date, int years) {
    const auto later = platform().calendar.dateByAddingYears(instantAt(date), years);
    return later ? std::optional(secondsSince1970(*later)) : std::nullopt;
  }
};

TEST_P(CalendarConformance, CompletesAYearToTheSecond) {
  EXPECT_EQ(years(1132006400, 1699999999), 17);  // from 2005-11-14 22:13:20
  EXPECT_EQ(years(1132006400, 1700000000), 18);  // to 2023-11-14 22:13:20
}

TEST_P(CalendarConformance, CompletesALeapDaysYearOnThe28thInCommonYears) {
  EXPECT_EQ(years(951782400, 983318399), 0);    // 2000-02-29 to 2001-02-27 23:59:59
  EXPECT_EQ(years(951782400, 983318400), 1);    // to 2001-02-28
  EXPECT_EQ(years(951782400, 1709164799), 23);  // to 2024-02-28 23:59:59
  EXPECT_EQ(years(951782400, 1709164800), 24);  // to 2024-02-29
}

TEST_P(CalendarConformance, CountsBackwardsFromWholeYears) {
  EXPECT_EQ(years(1700000000, 1700000000), 0);
  EXPECT_EQ(years(1731622399, 1700000000), 0);   // 2024-11-14 22:13:19
  EXPECT_EQ(years(1731622400, 1700000000), -1);  // 2024-11-14 22:13:20
}

TEST_P(CalendarConformance, KnowsDatesBefore1970) {
  EXPECT_EQ(years(-2208988800, 1700000000), 123);  // from 1900-01-01
  EXPECT_EQ(years(-2203977600, -2172441600), 1);   // 1900-02-28 to 1901-02-28
}

TEST_P(CalendarConformance, AddsYears) {
  EXPECT_EQ(later(1700000000, 1), 1731622400);  // 2023-11-14 to 2024-11-14
  EXPECT_EQ(later(1700000000, 0), 1700000000);
  EXPECT_EQ(later(1731622400, -1), 1700000000);
}

TEST_P(CalendarConformance, AddsAYearToALeapDay) {
  EXPECT_EQ(later(1709164800, 1), 1740700800);  // 2024-02-29 to 2025-02-28
  EXPECT_EQ(later(1709164800, 4), 1835395200);  // to 2028-02-29
}

TEST_P(CalendarConformance, GivesNulloptForWhatIsNotADate) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double bad : {none, infinity, -infinity, 1e300, -1e300, 1e18, -1e18}) {
    EXPECT_EQ(years(bad, 0), std::nullopt) << bad;
    EXPECT_EQ(years(0, bad), std::nullopt) << bad;
    EXPECT_EQ(later(bad, 1), std::nullopt) << bad;
  }
}

}  // namespace qv_commons::conformance
