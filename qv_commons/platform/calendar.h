// The user's current calendar, with its time zone.
//
// Instants are seconds since 1970-01-01 00:00:00 UTC, with their fraction.
#pragma once

#include <cstdint>
#include <optional>

namespace qv_commons {

class Calendar {
 public:
  virtual ~Calendar() = default;

  // The whole calendar years from `from` to `to`: a year is complete when the same month, day and
  // time of day have been reached again; negative where `to` is more than a year earlier. Nothing
  // where the calendar can't tell (an instant that is not a number, or too far away).
  virtual std::optional<std::int64_t> yearsBetween(double from, double to) const = 0;

  // The same month, day and time of day `years` later, or the last day of a month that has no such
  // day; nothing where the calendar can't tell.
  virtual std::optional<double> dateByAddingYears(double date, int years) const = 0;
};

}  // namespace qv_commons
