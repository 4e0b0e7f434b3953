#include "qv_commons/age_gate/age_gate_decision.h"

#include <optional>

#include "qv_commons/age_gate/birth_date.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons {

AgeGateStartDecision decideAgeGateStart(const UserDefaults& userDefaults) {
  const bool shown = userDefaults.boolForKey(kAgeGateShownKey);
  const bool blocked = shown && userDefaults.boolForKey(kAgeGateBlockedKey);
  return decideAgeGateStart(shown, blocked);
}

std::int64_t ageInYears(BirthDate birth, Instant now, const Calendar& calendar) {
  const std::optional<std::int64_t> years = calendar.yearsBetween(birth.instant, now);
  if (!years) fatalError("ageInYears: the calendar gives no years between birth and now");
  return *years;
}

AgeGateVerdict judgeBirthDate(BirthDate birth, Instant now, const Calendar& calendar,
                              std::int64_t minimumAge) {
  return ageInYears(birth, now, calendar) >= minimumAge ? AgeGateVerdict::allowed
                                                        : AgeGateVerdict::refused;
}

}  // namespace qv_commons
