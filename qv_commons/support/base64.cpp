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
// four of six bits and than what compilers make of vector code for a plain x86-64.
constexpr std::array<char, 2 * 4096> makePairs() {
  std::array<char, 2 * 4096> pairs{};
  for (std::size_t value = 0; value < 4096; ++value) {
    pairs[2 * value] = kAlphabet[value >> 6];
    pairs[2 * value + 1] = kAlphabet[value & 63];
  }
  return pairs;
}

constexpr std::array<char, 2 * 4096> kPairs = makePairs();

// The first byte highest, whatever the machine's own order. Compilers make one load of it.
std::uint64_t eightBytes(const unsigned char* in) {
  const auto byte = [in](int i) { return std::uint64_t{in[i]} << (56 - 8 * i); };
  return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// Writes the two characters of the lowest 12 bits.
void writePair(char* out, std::uint64_t bits) {
  std::memcpy(out, &kPairs[2 * (bits & 4095)], 2);
}

}  // namespace

std::string base64Encoded(std::string_view bytes) {
  std::string text((bytes.size() + 2) / 3 * 4, '=');
  const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t left = bytes.size();
  char* out = text.data();
  for (; left >= 8; left -= 6, in += 6, out += 8) {  // six of the eight bytes that one load brings
    const std::uint64_t bits = eightBytes(in);
    writePair(out, bits >> 52);
    writePair(out + 2, bits >> 40);
    writePair(out + 4, bits >> 28);
    writePair(out + 6, bits >> 16);
  }
  for (; left >= 3; left -= 3, in += 3, out += 4) {
    const std::uint32_t bits = std::uint32_t{in[0]} << 16 | std::uint32_t{in[1]} << 8 | in[2];
    writePair(out, bits >> 12);
    writePair(out + 2, bits);
  }
  if (left != 0) {
    const unsigned char second = left == 2 ? in[1] : 0;
    writePair(out, std::uint32_t{in[0]} << 4 | second >> 4);
    if (left == 2) out[2] = kAlphabet[(second & 15) << 2];
  }
  return text;
}

}  // namespace qv_commons
