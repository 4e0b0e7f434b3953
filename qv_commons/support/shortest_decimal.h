// The digits of the shortest decimal that reads back as a given double.
#pragma once

#include <cstdint>

namespace qv_commons {

// The number digits * 10^exponent.
struct ShortestDecimal {
  std::uint64_t digits;
  int exponent;
};

// `value` is finite and above zero. Of the shortest decimals that round to `value`, the nearest to
// it; the result may end in zeros. Any thread.
//
// Raffaello Giulietti, "The Schubfach way to render doubles" (2021), with the names of that paper.
ShortestDecimal shortestDecimal(double value);

}  // namespace qv_commons
