// 64-bit arithmetic that tells where it would leave 64 bits.
#pragma once

#include <cstdint>
#include <limits>

namespace qv_commons {

// Each gives whether the true result fits, and only then sets `result`, which may be an operand
// too. Any thread.

inline bool addChecked(std::int64_t a, std::int64_t b, std::int64_t& result) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (b > 0 ? a > Limits::max() - b : a < Limits::min() - b) return false;
  result = a + b;
  return true;
}

// `factor` is above zero.
inline bool multiplyChecked(std::int64_t a, std::int64_t factor, std::int64_t& result) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (a > Limits::max() / factor || a < Limits::min() / factor) return false;
  result = a * factor;
  return true;
}

}  // namespace qv_commons
