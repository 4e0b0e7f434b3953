// A real calendar, so that a host's tests can use true dates: the Gregorian one, reckoned forwards
// and backwards without end, in UTC.
//
//     constexpr double kBirth = 951782400;  // 2000-02-29
//     constexpr double kNow = 1709078400;   // 2024-02-28
//     auto age = platform.calendar().yearsBetween(kBirth, kNow);  // 23
#pragma once

#include <cstdint>
#include <optional>

#include "qv_commons/platform/calendar.h"
#include "qv_commons/platform/memory/record.h"

namespace qv_commons::memory {

// A year that began on 29 February is complete on 28 February of a common year, at the same time of
// day. Instants that are not a number, or more than 10^13 seconds (some 317,000 years) from 1970,
// give nothing.
class MemoryCalendar final : public Calendar {
 public:
  explicit MemoryCalendar(Record& record) : record_(record) {}

  // Where false, the calendar can tell nothing.
  bool available = true;

  std::optional<std::int64_t> yearsBetween(double from, double to) const override;
  std::optional<double> dateByAddingYears(double date, int years) const override;

 private:
  Record& record_;
};

}  // namespace qv_commons::memory
