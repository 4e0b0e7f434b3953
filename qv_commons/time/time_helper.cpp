#include "qv_commons/time/time_helper.h"

#include <limits>

#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {
namespace {

// Toward zero, and to the nearest of 64 bits, which no real clock exceeds.
std::int64_t truncated(double value) {
  if (!(value < 0x1p63)) return std::numeric_limits<std::int64_t>::max();
  if (value < -0x1p63) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(value);
}

}  // namespace

std::int64_t QV_TimeHelper::currentTimeInMilliseconds() {
  return truncated(secondsSince1970(currentPlatform().clock.now()) * 1000.0);
}

PlatformInteger QV_TimeHelper::currentTimeInSeconds() {
  return truncated(secondsSince1970(currentPlatform().clock.now()));
}

std::int64_t QV_TimeHelper::secondsToMinutes(std::int64_t seconds, bool roundUp) {
  return seconds / 60 + (roundUp && seconds % 60 > 1 ? 1 : 0);  // one second more is dropped, too
}

PlatformInteger QV_TimeHelper::secondsToDays(PlatformInteger seconds) {
  return seconds / 86400;
}

}  // namespace qv_commons
