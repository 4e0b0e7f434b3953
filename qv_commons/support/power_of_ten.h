// Powers of ten as numbers of 128 bits, for the conversion of doubles.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace qv_commons {

struct Wide {
  std::uint64_t high;
  std::uint64_t low;
};

// All 128 bits of the product.
constexpr Wide multiply(std::uint64_t a, std::uint64_t b) {
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

inline constexpr int kMinPowerOfTen = -292;
inline constexpr int kMaxPowerOfTen = 324;

namespace power_of_ten {

// The bits of a power of ten are those of the power of five. A table of all 617 would take 10 KB;
// every 27th with 192 bits, times a power of five that fits 64, gives the same 128 bits each time,
// which a test goes through.
inline constexpr int kStep = 27;  // 5^27 has 63 bits
inline constexpr int kFirst = -297;
inline constexpr std::size_t kBases = 24;
static_assert(kFirst <= kMinPowerOfTen &&
              kMaxPowerOfTen < kFirst + kStep * static_cast<int>(kBases));

// An integer of 32-bit words, lowest first, wide enough for 5^324 and for 2^927 over 5^297.
inline constexpr std::size_t kWords = 29;
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

using Base = std::array<std::uint64_t, 3>;  // highest first

// The 192 bits from the highest one set; what is below them is cut off.
constexpr Base leadingBits(const Words& words) {
  std::size_t top = kWords - 1;
  while (words[top] == 0) --top;
  const int shift = std::countl_zero(words[top]);
  const auto word = [&](std::size_t i) { return std::uint64_t{i <= top ? words[top - i] : 0}; };
  const auto shifted = [&](std::size_t i) {
    return (word(i) << shift | word(i + 1) << shift >> 32) & 0xFFFFFFFF;
  };
  return {shifted(0) << 32 | shifted(1), shifted(2) << 32 | shifted(3),
          shifted(4) << 32 | shifted(5)};
}

constexpr std::array<Base, kBases> makeBases() {
  std::array<Base, kBases> bases{};
  const auto keep = [&bases](int k, const Words& words) {
    if (k % kStep == 0) bases[static_cast<std::size_t>((k - kFirst) / kStep)] = leadingBits(words);
  };
  Words power{1};
  for (int k = 0; k <= kMaxPowerOfTen; ++k) {
    keep(k, power);
    multiplyByFive(power);
  }
  Words reciprocal{};
  reciprocal[kWords - 1] = 0x80000000;
  for (int k = -1; k >= kFirst; --k) {
    divideByFive(reciprocal);
    keep(k, reciprocal);
  }
  return bases;
}

// 5^0 to 5^26, each moved up to the highest bit.
constexpr std::array<std::uint64_t, kStep> makeSmallPowers() {
  std::array<std::uint64_t, kStep> powers{};
  std::uint64_t power = 1;
  for (std::uint64_t& entry : powers) {
    entry = power << std::countl_zero(power);
    power *= 5;
  }
  return powers;
}

inline constexpr auto kBasesOfTen = makeBases();
inline constexpr auto kSmallPowers = makeSmallPowers();

}  // namespace power_of_ten

// The 128 bits of 10^k after its leading zeros, rounded up: 10^1 is
// 0xA0000000000000000000000000000000. For the exponents between the two above, the ends included.
// Any thread.
inline Wide powerOfTen(int k) {
  const auto place = static_cast<std::size_t>(k - power_of_ten::kFirst);
  const power_of_ten::Base& base = power_of_ten::kBasesOfTen[place / power_of_ten::kStep];
  const std::uint64_t factor = power_of_ten::kSmallPowers[place % power_of_ten::kStep];

  // The product's words, the lowest last.
  const Wide high = multiply(base[0], factor);
  const Wide middle = multiply(base[1], factor);
  const Wide low = multiply(base[2], factor);
  const std::uint64_t third = middle.low + low.high;
  const std::uint64_t toSecond = middle.high + (third < low.high ? 1 : 0);  // at most 2^64 - 1
  const std::uint64_t second = high.low + toSecond;
  const std::uint64_t first = high.high + (second < toSecond ? 1 : 0);

  const unsigned shift = first >> 63 == 0 ? 1 : 0;  // both factors have their highest bit set
  const bool cutOff = (third << shift | low.low) != 0;
  Wide bits{first << shift | (shift & second >> 63), second << shift | (shift & third >> 63)};
  if (cutOff && ++bits.low == 0) ++bits.high;
  return bits;
}

}  // namespace qv_commons
