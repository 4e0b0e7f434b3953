// The usual texts of a duration, eight characters at most, as one number that has a character in
// each byte.
//
//     int seconds = qv_commons::readClockText("1:02:05");  // 3725
#pragma once

#include <cstdint>
#include <string_view>

namespace qv_commons {

// The first of four characters lowest, whatever the machine's own order. Compilers make one load
// of it.
inline std::uint32_t fourCharacters(const char* at) {
  const auto byte = [at](int i) {
    return std::uint32_t{static_cast<unsigned char>(at[i])} << (8 * i);
  };
  return byte(0) | byte(1) | byte(2) | byte(3);
}

// The other way round, for eight. Compilers make one store of it.
inline void writeEight(char* out, std::uint64_t characters) {
  const auto write = [=](int i) { out[i] = static_cast<char>(characters >> (8 * i)); };
  write(0), write(1), write(2), write(3), write(4), write(5), write(6), write(7);
}

constexpr std::uint64_t eightCharacters(std::string_view text) {
  std::uint64_t all = 0;
  for (unsigned i = 0; i < 8; ++i) {
    all |= std::uint64_t{static_cast<unsigned char>(text[i])} << (8 * i);
  }
  return all;
}

// The seconds of "hh:mm:ss" and of its last four, five, six or seven characters; -1 for any other
// text, which may be a duration all the same. Any thread.
//
// One number holds all eight characters, a byte each, with "0" or ":" for those that the text
// lacks. Exclusive or with "00:00:00" leaves the digits' values and 0 for the colons. A byte that
// is now above 9, or a colon's above 0, sets its highest bit when the distance to 128 is added, or
// has it set. Ten times the number plus the number moved down by one place has the value of each
// pair in the place of its tens. (Daniel Lemire, "Quickly parsing eight digits", 2018, reads digits
// so.)
//
// A branch on the text's length would often be predicted wrongly, which takes longer than all this.
inline int readClockText(std::string_view text) {
  constexpr std::uint64_t kZeros = eightCharacters("00:00:00");
  constexpr std::uint64_t kToTop = eightCharacters("\x76\x76\x7F\x76\x76\x7F\x76\x76");
  constexpr std::uint64_t kTop = 0x8080808080808080;

  const std::size_t size = text.size();
  if (size < 4) return -1;
  const std::uint64_t first = fourCharacters(text.data());
  const std::uint64_t last = fourCharacters(text.data() + size - 4);
  const std::size_t lacking = 8 * (8 - size) % 64;  // bits; anything where there are too many
  const std::uint64_t digits = (first << lacking | last << 32) ^ (kZeros >> lacking << lacking);
  const std::uint64_t wrong = ((digits + kToTop) | digits) & kTop;
  const bool tooMany = size > 8;
  if ((wrong | std::uint64_t{tooMany}) != 0) return -1;

  const std::uint64_t pairs = digits * 10 + (digits >> 8);
  const auto pair = [pairs](int tens) { return static_cast<int>(pairs >> (8 * tens) & 0xFF); };
  return 3600 * pair(0) + 60 * pair(3) + pair(6);
}

}  // namespace qv_commons
