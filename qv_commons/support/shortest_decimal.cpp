#include "qv_commons/support/shortest_decimal.h"

#include <bit>

#include "qv_commons/support/power_of_ten.h"

namespace qv_commons {
namespace {

// The upper 64 bits of power * factor; the lowest bit also stands for any bit below them.
std::uint64_t roundToOdd(Wide power, std::uint64_t factor) {
  const std::uint64_t fromLow = multiply(power.low, factor).high;
  const Wide product = multiply(power.high, factor);
  const std::uint64_t low = product.low + fromLow;
  const std::uint64_t high = product.high + (low < fromLow ? 1 : 0);
  return high | (low > 1 ? 1 : 0);
}

// Rounded down: q * log10(2), the same less log10(4/3), and e * log2(10).
int floorLog10Pow2(int q, bool threeQuarters) {
  return (q * 1262611 - (threeQuarters ? 524031 : 0)) >> 22;
}
int floorLog2Pow10(int e) {
  return (e * 1741647) >> 19;
}

// `value` is c * 2^q. `irregular`: the next double below is only half as far as the one above.
ShortestDecimal shortestInInterval(std::uint64_t c, int q, bool irregular) {
  const int k = floorLog10Pow2(q, irregular);
  const int h = q + floorLog2Pow10(-k) + 1;
  const Wide power = powerOfTen(-k);
  // Four times the value and the two ends of the interval that rounds to it, over 10^k.
  const std::uint64_t excludeEnds = c & 1;
  const std::uint64_t lower = roundToOdd(power, (4 * c - (irregular ? 1 : 2)) << h) + excludeEnds;
  const std::uint64_t middle = roundToOdd(power, (4 * c) << h);
  const std::uint64_t upper = roundToOdd(power, (4 * c + 2) << h) - excludeEnds;

  const std::uint64_t s = middle / 4;
  if (s >= 10) {
    const std::uint64_t tens = s / 10;
    const bool downInside = lower <= 40 * tens;
    const bool upInside = 40 * tens + 40 <= upper;
    if (downInside != upInside) return {tens + (upInside ? 1 : 0), k + 1};
  }
  const bool downInside = lower <= 4 * s;
  const bool upInside = 4 * s + 4 <= upper;
  if (downInside != upInside) return {s + (upInside ? 1 : 0), k};
  const std::uint64_t half = 4 * s + 2;
  const bool roundUp = middle > half || (middle == half && (s & 1) != 0);
  return {s + (roundUp ? 1 : 0), k};
}

}  // namespace

ShortestDecimal shortestDecimal(double value) {
  constexpr int kFractionBits = 52;
  constexpr int kBias = 1023 + kFractionBits;
  constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << kFractionBits;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const std::uint64_t fraction = bits & (kHiddenBit - 1);
  const int exponent = static_cast<int>(bits >> kFractionBits);
  if (exponent == 0) return shortestInInterval(fraction, 1 - kBias, false);
  const std::uint64_t c = fraction | kHiddenBit;
  const int q = exponent - kBias;
  const bool isSmallInteger = q <= 0 && q > -kFractionBits - 1 && std::countr_zero(c) >= -q;
  if (isSmallInteger) return {c >> -q, 0};
  return shortestInInterval(c, q, fraction == 0 && exponent > 1);
}

}  // namespace qv_commons
