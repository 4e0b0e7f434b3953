#include "qv_commons/support/base64.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace qv_commons {
namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The two characters of every 12-bit value: three bytes take two look-ups, which is faster than
// four of six bits and than what compilers make of vector code for a plain x86-64. Made at the
// first use, because as a constant it would be a fifth of the library.
using Pairs = std::array<std::array<char, 2>, 4096>;

Pairs makePairs() {
  Pairs pairs;
  for (std::size_t value = 0; value < pairs.size(); ++value) {
    pairs[value] = {kAlphabet[value >> 6], kAlphabet[value & 63]};
  }
  return pairs;
}

// The first byte highest, whatever the machine's own order. Compilers make one load of it.
std::uint64_t eightBytes(const unsigned char* in) {
  const auto byte = [in](int i) { return std::uint64_t{in[i]} << (56 - 8 * i); };
  return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

void encode(const unsigned char* in, std::size_t left, char* out, const Pairs& pairs) {
  const auto write = [&pairs](char* at, std::uint64_t bits) {  // the lowest 12
    std::memcpy(at, &pairs[bits & 4095], 2);
  };
  for (; left >= 8; left -= 6, in += 6, out += 8) {  // six of the eight bytes that one load brings
    const std::uint64_t bits = eightBytes(in);
    write(out, bits >> 52);
    write(out + 2, bits >> 40);
    write(out + 4, bits >> 28);
    write(out + 6, bits >> 16);
  }
  for (; left >= 3; left -= 3, in += 3, out += 4) {
    const std::uint32_t bits = std::uint32_t{in[0]} << 16 | std::uint32_t{in[1]} << 8 | in[2];
    write(out, bits >> 12);
    write(out + 2, bits);
  }
  if (left != 0) {
    const unsigned char second = left == 2 ? in[1] : 0;
    write(out, std::uint32_t{in[0]} << 4 | second >> 4);
    if (left == 2) out[2] = kAlphabet[(second & 15U) << 2];
  }
}

}  // namespace

std::string base64Encoded(std::string_view bytes) {
  static const Pairs pairs = makePairs();
  std::string text((bytes.size() + 2) / 3 * 4, '=');
  encode(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), text.data(), pairs);
  return text;
}

}  // namespace qv_commons
