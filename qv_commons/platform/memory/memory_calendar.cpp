#include "qv_commons/platform/memory/memory_calendar.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "qv_commons/support/decimal_text.h"

namespace qv_commons::memory {
namespace {

constexpr double kFarthest = 1e13;
constexpr double kSecondsPerDay = 86400;

// `month` counts from March, so that the leap day is the last of its year.
struct Day {
  std::int64_t year;
  std::int64_t month;  // 0 is March, 11 is February of the next civil year
  std::int64_t day;    // from 1
};

struct Moment {
  Day day;
  double timeOfDay;
};

constexpr std::int64_t kDaysPer400Years = 146097;
constexpr std::int64_t kDaysFromMarchYear0To1970 = 719468;

// The two conversions: Howard Hinnant, "chrono-Compatible Low-Level Date Algorithms" (2013).
std::int64_t daysFrom1970(const Day& day) {
  const std::int64_t era = (day.year >= 0 ? day.year : day.year - 399) / 400;
  const std::int64_t yearOfEra = day.year - era * 400;
  const std::int64_t dayOfYear = (153 * day.month + 2) / 5 + day.day - 1;
  const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * kDaysPer400Years + dayOfEra - kDaysFromMarchYear0To1970;
}

Day dayOf(std::int64_t daysFrom1970) {
  const std::int64_t days = daysFrom1970 + kDaysFromMarchYear0To1970;
  const std::int64_t era = (days >= 0 ? days : days - (kDaysPer400Years - 1)) / kDaysPer400Years;
  const std::int64_t dayOfEra = days - era * kDaysPer400Years;
  const std::int64_t yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t month = (5 * dayOfYear + 2) / 153;
  return {yearOfEra + era * 400, month, dayOfYear - (153 * month + 2) / 5 + 1};
}

bool isInRange(double instant) {
  return std::abs(instant) <= kFarthest;  // false for what is not a number
}

Moment momentOf(double instant) {
  const double day = std::floor(instant / kSecondsPerDay);
  return {dayOf(static_cast<std::int64_t>(day)), instant - day * kSecondsPerDay};
}

// February of the March year `year` lies in the civil year after it.
bool endsWithLeapDay(std::int64_t year) {
  const std::int64_t civil = year + 1;
  return civil % 4 == 0 && (civil % 100 != 0 || civil % 400 == 0);
}

double yearsLater(const Moment& moment, std::int64_t years) {
  Day day = moment.day;
  day.year += years;
  if (day.month == 11 && day.day == 29 && !endsWithLeapDay(day.year)) day.day = 28;
  return static_cast<double>(daysFrom1970(day)) * kSecondsPerDay + moment.timeOfDay;
}

}  // namespace

Instant utcDate(std::int64_t year, int month, int day) {
  const bool isBeforeMarch = month < 3;
  const Day counted = {isBeforeMarch ? year - 1 : year, (month + 9) % 12, day};
  return instantAt(static_cast<double>(daysFrom1970(counted)) * kSecondsPerDay);
}

std::optional<std::int64_t> MemoryCalendar::yearsBetween(Instant from, Instant to) const {
  const double begin = secondsSince1970(from);
  const double end = secondsSince1970(to);
  record_.add("calendar.yearsBetween ", decimalText(begin), " ", decimalText(end));
  if (!available || !isInRange(begin) || !isInRange(end)) return std::nullopt;
  const Moment start = momentOf(begin);
  std::int64_t years = momentOf(end).day.year - start.day.year;
  if (years > 0 && yearsLater(start, years) > end) --years;
  if (years < 0 && yearsLater(start, years) < end) ++years;
  return years;
}

std::optional<Instant> MemoryCalendar::dateByAddingYears(Instant date, int years) const {
  const double seconds = secondsSince1970(date);
  record_.add("calendar.dateByAddingYears ", decimalText(seconds), " ", std::to_string(years));
  if (!available || !isInRange(seconds)) return std::nullopt;
  const double later = yearsLater(momentOf(seconds), years);
  return isInRange(later) ? std::optional(instantAt(later)) : std::nullopt;
}

}  // namespace qv_commons::memory
