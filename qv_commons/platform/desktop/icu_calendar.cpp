#include "qv_commons/platform/desktop/icu_calendar.h"

#include <cmath>
#include <utility>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::desktop {

namespace {

// A hundred million days, about 273,790 years, to either side of 1970: what ECMAScript's dates
// allow. ICU loses days, or takes seconds to answer, further out.
constexpr double kFarthestSecond = 8.64e12;

bool isWithinReach(Instant date) {
  return std::abs(secondsSince1970(date)) <= kFarthestSecond;  // false for NaN
}

icu::Locale localeOf(const std::string& tag) {
  if (tag.empty()) return icu::Locale::getDefault();
  UErrorCode status = U_ZERO_ERROR;
  icu::Locale locale = icu::Locale::forLanguageTag(tag, status);
  return U_SUCCESS(status) ? locale : icu::Locale::getRoot();
}

}  // namespace

IcuCalendar::IcuCalendar(const CalendarSettings& settings, CurrentTimeZone::ErrorHandler report)
    : locale_(localeOf(settings.locale)), timeZone_(settings.timeZone, std::move(report)) {}

std::optional<std::int64_t> IcuCalendar::yearsBetween(Instant from, Instant to) const {
  if (!isWithinReach(from) || !isWithinReach(to)) return std::nullopt;
  const auto calendar = makeCalendar();
  UErrorCode status = U_ZERO_ERROR;
  calendar->setTime(toMilliseconds(from), status);
  const std::int32_t years = calendar->fieldDifference(toMilliseconds(to), UCAL_YEAR, status);
  if (U_FAILURE(status)) return std::nullopt;
  return years;
}

std::optional<Instant> IcuCalendar::dateByAddingYears(Instant date, int years) const {
  if (!isWithinReach(date)) return std::nullopt;
  const auto calendar = makeCalendar();
  UErrorCode status = U_ZERO_ERROR;
  calendar->setTime(toMilliseconds(date), status);
  calendar->add(UCAL_YEAR, years, status);
  const Instant result = toInstant(calendar->getTime(status));
  if (U_FAILURE(status) || !isWithinReach(result)) return std::nullopt;
  return result;
}

std::unique_ptr<icu::Calendar> IcuCalendar::makeCalendar() const {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<icu::Calendar> calendar(
      icu::Calendar::createInstance(*timeZone_.get(), locale_, status));
  if (U_FAILURE(status)) fatalError("IcuCalendar: ICU has no calendar; is its data installed?");
  return calendar;
}

}  // namespace qv_commons::desktop
