#include "qv_commons/platform/desktop/date_wheels.h"

#include <algorithm>
#include <string_view>
#include <unicode/dtptngen.h>
#include <utility>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::desktop {

namespace {

constexpr int kYearsOnOffer = 150;  // nobody has lived that long
constexpr int kNoon = 12;           // on every day of every zone, whatever the clocks do
constexpr int kMostMonths = 14;     // one more than any calendar has
constexpr int kLongestMonth = 32;   // of the Indian calendar, the longest of all

QString toQString(const icu::UnicodeString& text) {
  return QString::fromUtf16(text.getBuffer(), text.length());
}

// The first letters of the fields in a pattern such as "MMMM d, y"; quoted text has none.
std::array<DateField, 3> orderOf(const icu::UnicodeString& pattern) {
  const auto placeOf = [&pattern](std::u16string_view letters) {
    bool isQuoted = false;
    for (std::int32_t place = 0; place < pattern.length(); ++place) {
      if (pattern[place] == u'\'') isQuoted = !isQuoted;
      if (!isQuoted && letters.find(pattern[place]) != std::u16string_view::npos) return place;
    }
    return pattern.length();
  };
  std::array<std::pair<std::int32_t, DateField>, 3> places{{{placeOf(u"yuUr"), DateField::year},
                                                            {placeOf(u"ML"), DateField::month},
                                                            {placeOf(u"d"), DateField::day}}};
  std::sort(places.begin(), places.end());
  return {places[0].second, places[1].second, places[2].second};
}

std::unique_ptr<icu::SimpleDateFormat> makeFormat(const IcuCalendar& calendar,
                                                  const icu::UnicodeString& pattern) {
  UErrorCode status = U_ZERO_ERROR;
  auto format = std::make_unique<icu::SimpleDateFormat>(pattern, calendar.locale(), status);
  if (U_FAILURE(status)) fatalError("DateWheels: ICU has no date format; is its data installed?");
  format->adoptCalendar(calendar.makeCalendar().release());
  return format;
}

std::unique_ptr<icu::DateTimePatternGenerator> makeGenerator(const IcuCalendar& calendar) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::DateTimePatternGenerator> generator(
      icu::DateTimePatternGenerator::createInstance(calendar.locale(), status));
  if (U_FAILURE(status)) fatalError("DateWheels: ICU has no date patterns; is its data installed?");
  return generator;
}

icu::UnicodeString bestPattern(const IcuCalendar& calendar, const icu::UnicodeString& fields) {
  UErrorCode status = U_ZERO_ERROR;
  return makeGenerator(calendar)->getBestPattern(fields, status);
}

icu::UnicodeString patternOfLongDate(const IcuCalendar& calendar) {
  const std::unique_ptr<icu::DateFormat> format(
      icu::DateFormat::createDateInstance(icu::DateFormat::kLong, calendar.locale()));
  const auto* longDate = dynamic_cast<const icu::SimpleDateFormat*>(format.get());
  icu::UnicodeString pattern;
  return longDate == nullptr ? bestPattern(calendar, "yMMMMd") : longDate->toPattern(pattern);
}

}  // namespace

DateWheels::DateWheels(const IcuCalendar& calendar) : calendar_(calendar) {
  makeFormats();
  setDate(Instant());
}

void DateWheels::makeFormats() {
  const std::string_view calendar = calendar_.makeCalendar()->getType();
  // The locale's long date says the order of a Gregorian calendar's fields ten times sooner.
  order_ = orderOf(calendar == "gregorian" ? patternOfLongDate(calendar_)
                                           : bestPattern(calendar_, "yMMMMd"));
  // Only there do the years start again within a lifetime.
  yearFormat_ = makeFormat(calendar_, calendar == "japanese" ? bestPattern(calendar_, "Gy") : "y");
  dayFormat_ = makeFormat(calendar_, "d");
  monthFormats_ = {makeFormat(calendar_, "LLLL"), makeFormat(calendar_, "LLL"),
                   makeFormat(calendar_, "L")};
}

QString DateWheels::name(DateField field) const {
  constexpr std::array kFields{UDATPG_YEAR_FIELD, UDATPG_MONTH_FIELD, UDATPG_DAY_FIELD};
  return toQString(makeGenerator(calendar_)->getFieldDisplayName(
      kFields.at(static_cast<std::size_t>(field)), UDATPG_WIDE));
}

void DateWheels::setDate(Instant date) {
  if (!calendar_.dateByAddingYears(date, 0)) return;
  typed_ = {};
  moveTo(maximum_ ? std::min(date, *maximum_) : date);
  UErrorCode status = U_ZERO_ERROR;
  const auto calendar = calendar_.makeCalendar();
  calendar->setTime(toMilliseconds(date_), status);
  millisecondOfDay_ = calendar->get(UCAL_MILLISECONDS_IN_DAY, status);
  firstYear_ = day_.year - kYearsOnOffer;
  lastYear_ = maximum_ ? maximumDay_.year : day_.year + kYearsOnOffer;
}

void DateWheels::setMaximumDate(std::optional<Instant> maximum) {
  const bool isDate = maximum && calendar_.dateByAddingYears(*maximum, 0);
  maximum_ = isDate ? maximum : std::nullopt;
  if (maximum_) maximumDay_ = dayOf(*maximum_);
  setDate(date_);
}

int DateWheels::rows(DateField field) const {
  const bool isLastYear = maximum_ && day_.year == maximumDay_.year;
  switch (field) {
    case DateField::year:
      return lastYear_ - firstYear_ + 1;
    case DateField::month:
      return isLastYear ? maximumDay_.month + 1 : static_cast<int>(day_.months.size());
    case DateField::day:
      break;
  }
  const bool isLastMonth = isLastYear && day_.month == maximumDay_.month;
  return isLastMonth ? maximumDay_.day : day_.months[static_cast<std::size_t>(day_.month)].days;
}

int DateWheels::row(DateField field) const {
  switch (field) {
    case DateField::year:
      return day_.year - firstYear_;
    case DateField::month:
      return day_.month;
    case DateField::day:
      break;
  }
  return day_.day - 1;
}

void DateWheels::choose(DateField field, int row) {
  typed_ = {};
  turn(field, row);
}

void DateWheels::turn(DateField field, int row) {
  const int nearest = std::clamp(row, 0, rows(field) - 1);
  if (nearest == this->row(field)) return;
  const Instant chosen = toInstant(millisecondsOfRow(field, nearest));
  moveTo(maximum_ ? std::min(chosen, *maximum_) : chosen);
}

void DateWheels::type(DateField field, int number) {
  const auto isTyped = [this](DateField one) -> std::optional<int>& {
    return typed_[static_cast<std::size_t>(one)];
  };
  if (field == DateField::year) {
    const std::optional<int> row = yearRow(number);
    if (!row) return;
    turn(field, *row);
  } else if (number < 1 || number > (field == DateField::day ? kLongestMonth : kMostMonths)) {
    return;
  }
  isTyped(field) = number;
  if (const auto month = isTyped(DateField::month)) turn(DateField::month, *month - 1);
  if (const auto day = isTyped(DateField::day)) turn(DateField::day, *day - 1);
}

// The nearest of several: only where years are counted by eras.
std::optional<int> DateWheels::yearRow(int number) const {
  const int near =
      row(DateField::year) + number - this->number(DateField::year, row(DateField::year));
  const auto isIt = [&](int row) { return this->number(DateField::year, row) == number; };
  if (near >= 0 && near < rows(DateField::year) && isIt(near)) return near;
  for (int row = rows(DateField::year) - 1; row >= 0; --row) {
    if (isIt(row)) return row;
  }
  return std::nullopt;
}

QString DateWheels::text(DateField field, int row, MonthForm form) const {
  const double instant = millisecondsOfRow(field, row);
  switch (field) {
    case DateField::year:
      return format(*yearFormat_, instant);
    case DateField::month:
      return format(*monthFormats_[static_cast<std::size_t>(form)], instant);
    case DateField::day:
      break;
  }
  return format(*dayFormat_, instant);
}

int DateWheels::number(DateField field, int row) const {
  if (field != DateField::year) return row + 1;
  UErrorCode status = U_ZERO_ERROR;
  const auto calendar = calendar_.makeCalendar();
  calendar->setTime(millisecondsOfRow(field, row), status);
  return calendar->get(UCAL_YEAR, status);
}

std::vector<DateWheels::Month> DateWheels::monthsOf(int year) const {
  UErrorCode status = U_ZERO_ERROR;
  const auto calendar = calendar_.makeCalendar();
  calendar->clear();
  calendar->set(UCAL_EXTENDED_YEAR, year);
  calendar->set(UCAL_MONTH, 0);
  calendar->set(UCAL_DATE, 1);
  calendar->set(UCAL_HOUR_OF_DAY, kNoon);
  std::vector<Month> months;
  do {
    const int identity =
        2 * calendar->get(UCAL_MONTH, status) + calendar->get(UCAL_IS_LEAP_MONTH, status);
    const int days = calendar->getActualMaximum(UCAL_DATE, status);
    months.push_back({identity, calendar->getTime(status), days});
    calendar->add(UCAL_DATE, days, status);
  } while (calendar->get(UCAL_EXTENDED_YEAR, status) == year && months.size() < kMostMonths);
  return months;
}

DateWheels::Day DateWheels::dayOf(Instant date) const {
  UErrorCode status = U_ZERO_ERROR;
  const auto calendar = calendar_.makeCalendar();
  calendar->setTime(toMilliseconds(date), status);
  Day day;
  day.year = calendar->get(UCAL_EXTENDED_YEAR, status);
  day.day = calendar->get(UCAL_DATE, status);
  day.months = monthsOf(day.year);
  calendar->set(UCAL_HOUR_OF_DAY, kNoon);
  calendar->set(UCAL_MINUTE, 0);
  const double noon = calendar->getTime(status) + 1;
  const auto after = std::find_if(day.months.begin() + 1, day.months.end(),
                                  [noon](const Month& month) { return month.start > noon; });
  day.month = static_cast<int>(after - day.months.begin()) - 1;
  return day;
}

// In milliseconds, with the time of day that was set.
double DateWheels::millisecondsOf(const Month& month, int day) const {
  UErrorCode status = U_ZERO_ERROR;
  const auto calendar = calendar_.makeCalendar();
  calendar->setTime(month.start, status);
  calendar->add(UCAL_DATE, std::min(day, month.days) - 1, status);
  calendar->set(UCAL_MILLISECONDS_IN_DAY, millisecondOfDay_);
  return calendar->getTime(status);
}

double DateWheels::millisecondsOfRow(DateField field, int row) const {
  const auto month = static_cast<std::size_t>(day_.month);
  switch (field) {
    case DateField::day:
      return millisecondsOf(day_.months[month], row + 1);
    case DateField::month:
      return millisecondsOf(day_.months[static_cast<std::size_t>(row)], day_.day);
    case DateField::year:
      break;
  }
  // The same month of another year, which in some calendars has another place or isn't there.
  const std::vector<Month> months = monthsOf(firstYear_ + row);
  const auto same = std::find_if(months.begin(), months.end(), [&](const Month& candidate) {
    return candidate.identity == day_.months[month].identity;
  });
  return millisecondsOf(same != months.end() ? *same : months[std::min(month, months.size() - 1)],
                        day_.day);
}

void DateWheels::moveTo(Instant date) {
  date_ = date;
  day_ = dayOf(date);
}

QString DateWheels::format(const icu::SimpleDateFormat& format, double milliseconds) const {
  icu::UnicodeString text;
  return toQString(format.format(milliseconds, text));
}

}  // namespace qv_commons::desktop
