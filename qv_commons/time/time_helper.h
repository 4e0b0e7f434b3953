// The wall clock as whole numbers, conversions of durations, and durations as clock-style text.
//
//     std::int64_t now = qv_commons::QV_TimeHelper::currentTimeInMilliseconds();
//     std::string text = qv_commons::QV_TimeHelper::secondsToHms(3725);         // "1:02:05"
//     std::int64_t seconds = qv_commons::QV_TimeHelper::hmsToSeconds("1:02:05");  // 3725
//
// Any thread. Only the two clock operations ask the platform; all others are pure.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "qv_commons/export.h"

namespace qv_commons {

// The platform's plain integer if that has 64 bits, which need not be the same type as
// `std::int64_t`; otherwise `std::int64_t`.
using PlatformInteger =
    std::conditional_t<sizeof(std::ptrdiff_t) == 8, std::ptrdiff_t, std::int64_t>;

class QV_COMMONS_EXPORT QV_TimeHelper {
 public:
  // Milliseconds since 1970-01-01 00:00:00 UTC, for example 1700000000123. The clock's seconds
  // times 1000.0, cut off and never rounded: a reading of 1.001 s gives 1000, because the product
  // in double precision is 1000.9999999999999. Goes back if the wall clock is set back.
  static std::int64_t currentTimeInMilliseconds();

  // Whole seconds since the same instant, cut off: 1700000000 at 1700000000.9 s. Reads the clock
  // anew, so the result may differ from that of a call in milliseconds just before.
  static PlatformInteger currentTimeInSeconds();

  // Whole minutes, cut off toward zero: 119 gives 1, -61 gives -1. With `roundUp`, a rest of more
  // than one second counts as a minute: 62 gives 2, 61 gives 1, and negative ones are as without.
  static std::int64_t secondsToMinutes(std::int64_t seconds, bool roundUp);

  // Whole days of 86400 seconds, cut off toward zero: 172799 gives 1, -1 gives 0.
  static PlatformInteger secondsToDays(PlatformInteger seconds);

  // Minutes and seconds, each of two characters at least, and from one hour on the hours before
  // them: "02:05", "1:02:05", "100:00:00". There are no days. In a negative duration, every
  // field that is not zero has its sign: -3725 gives "-1:-2:-5". The hour count is read as 32 bits,
  // so 2147483648 hours give "-2147483648:00:00". No allocation up to 15 characters.
  static std::string secondsToHms(std::int64_t seconds);

  // The same figures without colons and leading zeros, as one number: 3725 gives "10205", 59 gives
  // "59". Zero and negative durations give "".
  static std::string secondsToHmsDigits(std::int64_t seconds);

  // The seconds of a text that `secondsToHms` wrote, or a person: hours, minutes and seconds
  // separated by ":", each with an optional sign and of any size, after white space around the text
  // is dropped. "90:00" gives 5400, "-1:30" gives -30. Empty fields don't count, and of more than
  // three the last three do: "1::30" gives 90, "1:2:3:4" gives 7384. What follows a full stop in
  // the last field is ignored: "1:30.75" gives 90.
  //
  // A text that can't be read, or whose sum overflows 64 bits, is a fatal error. No allocation.
  static std::int64_t hmsToSeconds(std::string_view text);

  // The same, but std::nullopt instead of the fatal error.
  static std::optional<std::int64_t> tryHmsToSeconds(std::string_view text);
};

}  // namespace qv_commons
