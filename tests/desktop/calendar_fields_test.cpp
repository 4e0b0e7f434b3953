// The whole years again, from the fields that ICU gives for both dates instead of from its own
// difference of dates: a year is complete when month, day and time of day have come again, the
// last day of a month standing for the days that it lacks.
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <unicode/ucal.h>

#include "qv_commons/platform/desktop/icu_calendar.h"

namespace qv_commons::desktop {
namespace {

struct Close {
  void operator()(UCalendar* calendar) const { ucal_close(calendar); }
};
using CCalendar = std::unique_ptr<UCalendar, Close>;

struct Fields {
  int year;
  int month;
  int day;
  int millisecond;
};

Fields fieldsAt(UCalendar* calendar, Instant date) {
  UErrorCode status = U_ZERO_ERROR;
  ucal_setMillis(calendar, secondsSince1970(date) * 1000, &status);
  return {ucal_get(calendar, UCAL_EXTENDED_YEAR, &status), ucal_get(calendar, UCAL_MONTH, &status),
          ucal_get(calendar, UCAL_DATE, &status),
          ucal_get(calendar, UCAL_MILLISECONDS_IN_DAY, &status)};
}

// Of the month in which `calendar` stands.
int lengthOfMonth(UCalendar* calendar) {
  UErrorCode status = U_ZERO_ERROR;
  return ucal_getLimit(calendar, UCAL_DATE, UCAL_ACTUAL_MAXIMUM, &status);
}

int yearsByFields(UCalendar* calendar, Instant birth, Instant now) {
  const Fields born = fieldsAt(calendar, birth);
  const Fields at = fieldsAt(calendar, now);
  const int day = born.month == at.month ? std::min(born.day, lengthOfMonth(calendar)) : born.day;
  const auto before =
      std::tie(at.month, at.day, at.millisecond) < std::tie(born.month, day, born.millisecond);
  return at.year - born.year - (before ? 1 : 0);
}

class CalendarFields : public testing::TestWithParam<const char*> {};

TEST_P(CalendarFields, GiveTheSameYears) {
  const IcuCalendar calendar({GetParam(), "UTC"});
  UErrorCode status = U_ZERO_ERROR;
  const CCalendar fields(ucal_open(u"UTC", -1, calendar.locale().getName(), UCAL_DEFAULT, &status));
  ASSERT_TRUE(U_SUCCESS(status));
  std::mt19937 generator(20261120);
  std::uniform_int_distribution<int> births(-600'000'000, 1'700'000'000);
  std::uniform_int_distribution<int> seconds(-86400 * 3, 86400 * 3);
  std::uniform_int_distribution<int> ages(0, 40);
  int wrong = 0;
  for (int count = 0; count < 1500; ++count) {
    const Instant birth = instantAt(births(generator));
    const Instant birthday = calendar.dateByAddingYears(birth, ages(generator)).value();
    const Instant now = std::max(birth, birthday + Instant::duration(seconds(generator)));
    const auto years = calendar.yearsBetween(birth, now);
    if (years != yearsByFields(fields.get(), birth, now)) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
}

// Without the Hebrew calendar, whose months change their numbers from year to year.
INSTANTIATE_TEST_SUITE_P(Calendars, CalendarFields,
                         testing::Values("en-US", "th-TH", "ja-JP-u-ca-japanese",
                                         "ar-SA-u-ca-islamic-umalqura", "ar-SA-u-ca-islamic-civil",
                                         "fa-IR"));

}  // namespace
}  // namespace qv_commons::desktop
