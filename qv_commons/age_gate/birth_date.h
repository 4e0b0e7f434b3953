// Judging a date of birth.
//
//     constexpr double kBirth = 951782400;  // 2000-02-29, in seconds since 1970
//     constexpr double kNow = 1709078400;   // 2024-02-28
//     auto age = qv_commons::ageInYears(kBirth, kNow, platform.calendar());  // 23
//     bool allowed = qv_commons::judgeBirthDate(kBirth, kNow, platform.calendar(), 18) ==
//                    qv_commons::AgeGateVerdict::allowed;
//
// Instants are seconds since 1970-01-01 00:00:00 UTC. Main thread.
#pragma once

#include <cstdint>

#include "qv_commons/platform/calendar.h"

namespace qv_commons {

enum class AgeGateVerdict : std::uint8_t { allowed, refused };

// The whole calendar years from `birth` to `now`, as `calendar` counts them: a year is complete
// when the month, day and time of day of the birth have come round again. A birth that lies ahead
// gives 0, or minus the whole years until then. Asks the calendar once; a fatal error where it
// can't tell.
std::int64_t ageInYears(double birth, double now, const Calendar& calendar);

// Allowed where the age is `minimumAge` or more.
AgeGateVerdict judgeBirthDate(double birth, double now, const Calendar& calendar,
                              std::int64_t minimumAge);

}  // namespace qv_commons
