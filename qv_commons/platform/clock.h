// The wall clock.
#pragma once

namespace qv_commons {

class Clock {
 public:
  virtual ~Clock() = default;

  // Seconds since 1970-01-01 00:00:00 UTC, with their fraction, for example 1700000000.25. Any
  // thread.
  virtual double timeIntervalSince1970() const = 0;
};

}  // namespace qv_commons
