#include "qv_commons/time/time_helper.h"

#include <limits>

#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {
namespace {

// Toward zero. No real clock leaves 64 bits; one that does gets their nearest end.
template <class Integer>
Integer truncated(double value) {
  constexpr double kEnd = 0x1p63;
  if (!(value < kEnd)) return std::numeric_limits<Integer>::max();
  if (value < -kEnd) return std::numeric_limits<Integer>::min();
  return static_cast<Integer>(value);
}

double secondsNow() {
  return secondsSince1970(currentPlatform().clock.now());
}

}  // namespace

std::int64_t QV_TimeHelper::currentTimeInMilliseconds() {
  return truncated<std::int64_t>(secondsNow() * 1000.0);
}

PlatformInteger QV_TimeHelper::currentTimeInSeconds() {
  return truncated<PlatformInteger>(secondsNow());
}

std::int64_t QV_TimeHelper::secondsToMinutes(std::int64_t seconds, bool roundUp) {
  const std::int64_t minutes = seconds / 60;
  const std::int64_t rest = seconds % 60;
  return roundUp && rest > 1 ? minutes + 1 : minutes;  // one second more is let go, on purpose
}

PlatformInteger QV_TimeHelper::secondsToDays(PlatformInteger seconds) {
  return seconds / 86400;
}

}  // namespace qv_commons
