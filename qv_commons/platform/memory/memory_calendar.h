// A real calendar, so that a host's tests can use true dates: the Gregorian one, also before its
// introduction, in UTC.
//
//     const qv_commons::Instant birth = qv_commons::memory::utcDate(2000, 2, 29);
//     const qv_commons::Instant now = qv_commons::memory::utcDate(2024, 2, 28);
//     auto age = platform.calendar().yearsBetween(birth, now);  // 23
#pragma once

#include <cstdint>
#include <optional>

#include "qv_commons/export.h"
#include "qv_commons/platform/calendar.h"
#include "qv_commons/platform/memory/record.h"

namespace qv_commons::memory {

// Midnight UTC at the beginning of that day: the month from 1 to 12, the day from 1.
QV_COMMONS_EXPORT Instant utcDate(std::int64_t year, int month, int day);

// A year that began on 29 February is complete on 28 February of a common year, at the same time of
// day. Instants that are not a number, or more than 10^13 seconds (some 317,000 years) from 1970,
// give std::nullopt.
class QV_COMMONS_EXPORT MemoryCalendar final : public Calendar {
 public:
  explicit MemoryCalendar(Record& record) : record_(record) {}

  // False: the calendar gives std::nullopt.
  bool available = true;

  std::optional<std::int64_t> yearsBetween(Instant from, Instant to) const override;
  std::optional<Instant> dateByAddingYears(Instant date, int years) const override;

 private:
  Record& record_;
};

}  // namespace qv_commons::memory
