// The user's current calendar, with its time zone. Main thread only.
#pragma once

#include <cstdint>
#include <optional>

#include "qv_commons/platform/clock.h"

namespace qv_commons {

class Calendar {
 public:
  virtual ~Calendar() = default;

  // The whole calendar years from `from` to `to`: a year is complete when the same month, day and
  // time of day have been reached again; negative if `to` is more than a year earlier.
  // std::nullopt if the calendar can't tell (an instant that is not a number, or too far away).
  virtual std::optional<std::int64_t> yearsBetween(Instant from, Instant to) const = 0;

  // The same month, day and time of day `years` later, or the last day of a month that has no such
  // day; std::nullopt if the calendar can't tell.
  virtual std::optional<Instant> dateByAddingYears(Instant date, int years) const = 0;
};

}  // namespace qv_commons
