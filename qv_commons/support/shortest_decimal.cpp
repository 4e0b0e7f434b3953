#include "qv_commons/support/shortest_decimal.h"

#include <array>
#include <bit>
#include <cstddef>

namespace qv_commons {
namespace {

struct Wide {
  std::uint64_t high;
  std::uint64_t low;
};

constexpr int kMinPower = -292;
constexpr int kMaxPower = 324;

// The powers of ten, each as the 128 bits after its leading zeros, rounded up. They are those of
// the powers of five, which are worked out exactly on a wide integer of 32-bit words, lowest first.
constexpr std::size_t kWords = 27;
using Words = std::array<std::uint32_t, kWords>;

constexpr void multiplyByFive(Words& words) {
  std::uint64_t carry = 0;
  for (std::uint32_t& word : words) {
    carry += std::uint64_t{word} * 5;
    word = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
}

// Drops the remainder: dividing twice by five gives the same as dividing once by 25.
constexpr void divideByFive(Words& words) {
  std::uint64_t rest = 0;
  for (std::size_t i = kWords; i-- > 0;) {
    rest = rest << 32 | words[i];
    words[i] = static_cast<std::uint32_t>(rest / 5);
    rest %= 5;
  }
}

// The 128 bits from the highest one set; one more where anything below them was cut off.
constexpr Wide leadingBits(const Words& words, bool cutOff) {
  std::size_t top = kWords - 1;
  while (words[top] == 0) --top;
  const int shift = std::countl_zero(words[top]);
  std::uint64_t parts[4] = {};
  for (std::size_t i = 0; i < 5; ++i) {
    const std::uint64_t word = i <= top ? words[top - i] : 0;
    const std::uint64_t shifted = word << shift;
    if (i < 4) parts[i] |= shifted & 0xFFFFFFFF;
    if (i > 0) parts[i - 1] |= shifted >> 32;
    if (i == 4) cutOff = cutOff || (shifted & 0xFFFFFFFF) != 0;
  }
  for (std::size_t i = 5; i <= top; ++i) cutOff = cutOff || words[top - i] != 0;
  Wide bits{parts[0] << 32 | parts[1], parts[2] << 32 | parts[3]};
  if (cutOff && ++bits.low == 0) ++bits.high;
  return bits;
}

constexpr auto makePowers() {
  std::array<Wide, kMaxPower - kMinPower + 1> powers{};
  Words up{1};
  for (int k = 0; k <= kMaxPower; ++k) {
    powers[static_cast<std::size_t>(k - kMinPower)] = leadingBits(up, false);
    multiplyByFive(up);
  }
  Words down{};
  down[kWords - 1] = 0x80000000;
  for (int k = -1; k >= kMinPower; --k) {
    divideByFive(down);
    powers[static_cast<std::size_t>(k - kMinPower)] = leadingBits(down, true);
  }
  return powers;
}

constexpr auto kPowers = makePowers();

Wide multiply(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
  __extension__ using Product = unsigned __int128;
  const Product product = static_cast<Product>(a) * b;
  return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
  const std::uint64_t aLow = a & 0xFFFFFFFF, aHigh = a >> 32;
  const std::uint64_t bLow = b & 0xFFFFFFFF, bHigh = b >> 32;
  const std::uint64_t low = aLow * bLow;
  const std::uint64_t middle = aHigh * bLow + (low >> 32);
  const std::uint64_t cross = aLow * bHigh + (middle & 0xFFFFFFFF);
  return {aHigh * bHigh + (middle >> 32) + (cross >> 32), cross << 32 | (low & 0xFFFFFFFF)};
#endif
}

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
  const Wide power = kPowers[static_cast<std::size_t>(-k - kMinPower)];
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
