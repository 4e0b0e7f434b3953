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
inline std::uint64_t eightBytes(const unsigned char* in) {
  const auto byte = [in](int i) { return std::uint64_t{in[i]} << (56 - 8 * i); };
  return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// Writes the two characters of the lowest 12 bits.
inline void writePair(char* out, std::uint64_t bits) {
  std::memcpy(out, &kPairs[2 * (bits & 4095)], 2);
}

// Writes the eight characters of the highest 48 bits.
inline void writeEight(char* out, std::uint64_t bits) {
  writePair(out, bits >> 52);
  writePair(out + 2, bits >> 40);
  writePair(out + 4, bits >> 28);
  writePair(out + 6, bits >> 16);
}

void writeFour(char* out, const unsigned char* in) {
  const std::uint32_t bits = std::uint32_t{in[0]} << 16 | std::uint32_t{in[1]} << 8 | in[2];
  writePair(out, bits >> 12);
  writePair(out + 2, bits);
}

}  // namespace

std::string base64Encoded(std::string_view bytes) {
  std::string text((bytes.size() + 2) / 3 * 4, '=');
  const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t left = bytes.size();
  char* out = text.data();
  // Six bytes at a time, out of eight that one load brings, and two loads ahead of the writing.
  for (; left >= 14; left -= 12, in += 12, out += 16) {
    const std::uint64_t first = eightBytes(in);
    const std::uint64_t second = eightBytes(in + 6);
    writeEight(out, first);
    writeEight(out + 8, second);
  }
  for (; left >= 3; left -= 3, in += 3, out += 4) writeFour(out, in);
  if (left != 0) {
    const unsigned char last[3] = {in[0], left == 2 ? in[1] : static_cast<unsigned char>(0), 0};
    char four[4];
    writeFour(four, last);
    std::memcpy(out, four, left + 1);
  }
  return text;
}

}  // namespace qv_commons
