// Instants, and the wall clock that tells the current one.
//
//     constexpr qv_commons::Instant kLeapDay = qv_commons::instantAt(951782400);  // 2000-02-29
//     double seconds = qv_commons::secondsSince1970(kLeapDay);                    // 951782400.0
#pragma once

#include <chrono>

namespace qv_commons {

// Seconds since 1970-01-01 00:00:00 UTC, with their fraction.
using Instant = std::chrono::time_point<std::chrono::system_clock, std::chrono::duration<double>>;

constexpr Instant instantAt(double secondsSince1970) {
  return Instant(Instant::duration(secondsSince1970));
}

constexpr double secondsSince1970(Instant instant) {
  return instant.time_since_epoch().count();
}

class Clock {
 public:
  virtual ~Clock() = default;

  virtual Instant now() const = 0;  // any thread
};

}  // namespace qv_commons
