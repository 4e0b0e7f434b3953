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

std::uint32_t threeBytes(const unsigned char* in) {
  return static_cast<std::uint32_t>(in[0]) << 16 | static_cast<std::uint32_t>(in[1]) << 8 | in[2];
}

void writeFour(char* out, std::uint32_t group) {
  std::memcpy(out, &kPairs[2 * (group >> 12)], 2);
  std::memcpy(out + 2, &kPairs[2 * (group & 4095)], 2);
}

}  // namespace

std::string base64Encoded(std::string_view bytes) {
  const std::size_t rest = bytes.size() % 3;
  const std::size_t whole = bytes.size() - rest;
  std::string text((bytes.size() + 2) / 3 * 4, '=');
  const auto* in = reinterpret_cast<const unsigned char*>(bytes.data());
  char* out = text.data();
  for (const unsigned char* end = in + whole; in != end; in += 3, out += 4) {
    writeFour(out, threeBytes(in));
  }
  if (rest != 0) {
    const unsigned char last[3] = {in[0], rest == 2 ? in[1] : static_cast<unsigned char>(0), 0};
    char four[4];
    writeFour(four, threeBytes(last));
    std::memcpy(out, four, rest + 1);
  }
  return text;
}

}  // namespace qv_commons
