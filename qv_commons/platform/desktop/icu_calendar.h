// The user's calendar by ICU: the calendar of the locale, in the time zone of the settings.
#pragma once

#include <memory>
#include <string>
#include <unicode/calendar.h>
#include <unicode/locid.h>

#include "qv_commons/platform/calendar.h"
#include "qv_commons/platform/desktop/calendar_settings.h"
#include "qv_commons/platform/desktop/time_zone.h"

namespace qv_commons::desktop {

// ICU counts milliseconds since 1970.
inline UDate toMilliseconds(Instant instant) {
  return 1000 * secondsSince1970(instant);
}
inline Instant toInstant(UDate milliseconds) {
  return instantAt(milliseconds / 1000);
}

class IcuCalendar final : public Calendar {
 public:
  // The locale is looked up here, once; the zone at each question. `report` is told of a zone that
  // is not known.
  explicit IcuCalendar(const CalendarSettings& settings = {},
                       CurrentTimeZone::ErrorHandler report = {});

  std::optional<std::int64_t> yearsBetween(Instant from, Instant to) const override;
  std::optional<Instant> dateByAddingYears(Instant date, int years) const override;

  // A new calendar at each call: ICU's own is changed by the questions that it is asked.
  std::unique_ptr<icu::Calendar> makeCalendar() const;

  const icu::Locale& locale() const { return locale_; }

 private:
  icu::Locale locale_;
  CurrentTimeZone timeZone_;
};

}  // namespace qv_commons::desktop
