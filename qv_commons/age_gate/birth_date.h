// Judging a date of birth.
//
//     constexpr qv_commons::BirthDate kBirth = {qv_commons::instantAt(951782400)};  // 2000-02-29
//     constexpr qv_commons::Instant kNow = qv_commons::instantAt(1709078400);       // 2024-02-28
//     auto age = qv_commons::ageInYears(kBirth, kNow, platform.calendar());         // 23
//     bool allowed = qv_commons::judgeBirthDate(kBirth, kNow, platform.calendar(), 18) ==
//                    qv_commons::AgeGateVerdict::allowed;
#pragma once

#include <cstdint>

#include "qv_commons/export.h"
#include "qv_commons/platform/calendar.h"

namespace qv_commons {

enum class AgeGateVerdict : std::uint8_t { allowed, refused };

// A type of its own, so that it can't be taken for the current instant.
struct BirthDate {
  Instant instant;
};

// The whole calendar years from `birth` to `now`, as `calendar` counts them: a year is complete
// when the month, day and time of day of the birth have been reached again. Main thread. A future
// date gives 0, or minus the whole years until then. Asks the calendar once; a fatal error if it
// can't tell.
QV_COMMONS_EXPORT std::int64_t ageInYears(BirthDate birth, Instant now, const Calendar& calendar);

// Allowed if the age is `minimumAge` or more.
QV_COMMONS_EXPORT AgeGateVerdict judgeBirthDate(BirthDate birth, Instant now,
                                                const Calendar& calendar, std::int64_t minimumAge);

}  // namespace qv_commons
