// The language and the time zone by which the desktop adapter reckons dates.
#pragma once

#include <string>

namespace qv_commons::desktop {

// What the judgement of a date and the date picker have in common.
struct CalendarSettings {
  // A language tag, for example "th-TH" (its calendar is the Buddhist one) or
  // "ar-SA-u-ca-gregory". Empty: the language of the environment (LC_ALL, LC_MESSAGES, LANG);
  // LC_TIME has no say.
  std::string locale;

  // For example "Europe/Paris"; empty: the system's, by TZ or /etc/localtime, also when it changes.
  // What is no zone counts as UTC, and the host is told.
  std::string timeZone;
};

}  // namespace qv_commons::desktop
