// The user's calendar by ICU: the calendar of the locale, in the time zone of the settings.
#pragma once

#include <memory>
#include <string>
#include <unicode/calendar.h>
#include <unicode/locid.h>

#include "qv_commons/platform/calendar.h"

namespace qv_commons::desktop {

// What the judgement of a date and the date picker have in common.
struct CalendarSettings {
  // A language tag, for example "th-TH" (its calendar is the Buddhist one) or
  // "ar-SA-u-ca-gregory". Empty: the language of the environment (LC_ALL, LC_MESSAGES, LANG);
  // LC_TIME has no say.
  std::string locale;

  // For example "Europe/Paris"; empty: the system's, by TZ or /etc/localtime. What is no zone
  // counts as UTC.
  std::string timeZone;
};

class IcuCalendar final : public Calendar {
 public:
  // The locale and the zone are looked up here, once.
  explicit IcuCalendar(const CalendarSettings& settings = {});

  std::optional<std::int64_t> yearsBetween(double from, double to) const override;
  std::optional<double> dateByAddingYears(double date, int years) const override;

  // A new calendar at each call: ICU's own is changed by the questions that it is asked.
  std::unique_ptr<icu::Calendar> makeCalendar() const;

  const icu::Locale& locale() const { return locale_; }

 private:
  icu::Locale locale_;
  std::unique_ptr<const icu::TimeZone> timeZone_;
};

}  // namespace qv_commons::desktop
