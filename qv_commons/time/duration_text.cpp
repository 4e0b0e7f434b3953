// The duration texts of QV_TimeHelper.

#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>

#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/time/checked_arithmetic.h"
#include "qv_commons/time/clock_text.h"
#include "qv_commons/time/time_helper.h"
#include "qv_commons/time/white_space.h"

namespace qv_commons {
namespace {

struct Fields {
  int hours;  // as many of the count's low bits as there is room for
  int minutes;
  int seconds;
};

Fields fieldsOf(std::int64_t seconds) {
  return {static_cast<int>(seconds / 3600), static_cast<int>(seconds / 60 % 60),
          static_cast<int>(seconds % 60)};
}

// "00" to "99", one after the other.
constexpr std::array<char, 200> makePairs() {
  std::array<char, 200> pairs{};
  for (std::size_t value = 0; value < 100; ++value) {
    pairs[2 * value] = static_cast<char>('0' + value / 10);
    pairs[2 * value + 1] = static_cast<char>('0' + value % 10);
  }
  return pairs;
}

constexpr std::array<char, 200> kPairs = makePairs();

// Each of these writes at `out` and gives the end.

char* writePair(char* out, unsigned value) {
  std::memcpy(out, &kPairs[2 * value], 2);
  return out + 2;
}

// What printf writes for "%02d" and a value between -99 and 99.
char* writeSignedPair(char* out, int value) {
  if (value >= 0) return writePair(out, static_cast<unsigned>(value));
  *out++ = '-';
  if (value <= -10) return writePair(out, static_cast<unsigned>(-value));
  *out++ = static_cast<char>('0' - value);
  return out;
}

// The characters of such a pair, the first lowest. Compilers make one load of it.
constexpr std::uint32_t pairOf(unsigned value) {
  const char* at = &kPairs[std::size_t{2} * value];
  return static_cast<unsigned char>(at[0]) | std::uint32_t{static_cast<unsigned char>(at[1])} << 8;
}

// The hour count and its colon, as they open the text, and how many bits they take; nothing for no
// hours.
struct HoursText {
  std::uint32_t text;
  std::uint32_t bits;
};

constexpr std::array<HoursText, 100> makeHours() {
  std::array<HoursText, 100> hours{};
  for (unsigned value = 1; value < 100; ++value) {
    const std::uint32_t text = pairOf(value) | ':' << 16;
    hours[value] = value > 9 ? HoursText{text, 24} : HoursText{text >> 8, 16};
  }
  return hours;
}

constexpr std::array<HoursText, 100> kHours = makeHours();

// The text of most durations: those of less than 100 hours that are not negative. It is put
// together in one number, as `readClockText` takes it apart, and cut from a string of a fixed size,
// which is faster than making one of a size that the compiler does not know.
//
// No branch on the number of hours, because it would often be predicted wrongly; and one store in
// place of five, which with the string's own are more than a processor takes while it does the
// rest.
std::string everydayText(unsigned seconds) {
  const unsigned minutes = seconds / 60;
  const HoursText& hours = kHours[seconds / 3600];
  const std::uint64_t minutesText = pairOf(minutes - 60 * (seconds / 3600)) | ':' << 16;
  const std::uint64_t secondsText = pairOf(seconds - 60 * minutes);
  std::string text("00:00:00");
  writeEight(text.data(), hours.text | (minutesText | secondsText << 24) << hours.bits);
  text.erase(text.begin() + (hours.bits / 8 + 5), text.end());
  return text;
}

// Out of line, for the same reason as `readUnusualTextOrStop`.
[[gnu::noinline]] std::string anyText(std::int64_t seconds) {
  constexpr std::string_view kLongest = "-2147483648:-59:-59";
  const Fields fields = fieldsOf(seconds);
  std::array<char, kLongest.size()> buffer;
  char* out = buffer.data();
  if (seconds >= 3600 || seconds <= -3600) {
    out = std::to_chars(out, out + buffer.size(), fields.hours).ptr;
    *out++ = ':';
  }
  out = writeSignedPair(out, fields.minutes);
  *out++ = ':';
  out = writeSignedPair(out, fields.seconds);
  return {buffer.data(), out};
}

// Above 9 for every other character.
unsigned digitOf(char c) {
  return static_cast<unsigned char>(c - '0');
}

// An optional sign and digits, nothing else, within 64 bits.
std::optional<std::int64_t> readInteger(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (const char c : text) {
    const auto digit = static_cast<int>(digitOf(c));
    if (digit > 9 || !multiplyChecked(value, 10, value) ||
        !addChecked(value, negative ? -digit : digit, value)) {
      return std::nullopt;
    }
  }
  return value;
}

// Takes the last field that is not empty off the end of `text`; "" where none is left.
std::string_view takeLastField(std::string_view& text) {
  while (text.ends_with(':')) text.remove_suffix(1);
  const std::string_view field = text.substr(text.rfind(':') + 1);  // all where there is no colon
  text.remove_suffix(field.size());
  return field;
}

std::optional<std::int64_t> readLastFieldOrZero(std::string_view& text) {
  const std::string_view field = takeLastField(text);
  return field.empty() ? 0 : readInteger(field);
}

// (seconds + minutes * 60) + hours * 3600; nothing where a step leaves 64 bits, even if the whole
// would not.
std::optional<std::int64_t> sumOf(std::int64_t seconds, std::int64_t minutes, std::int64_t hours) {
  std::int64_t sum = 0;
  const bool fits = multiplyChecked(minutes, 60, minutes) && addChecked(seconds, minutes, sum) &&
                    multiplyChecked(hours, 3600, hours) && addChecked(sum, hours, sum);
  return fits ? std::optional(sum) : std::nullopt;
}

// `text` up to the first full stop in its last field.
std::string_view withoutFraction(std::string_view text) {
  std::size_t size = text.size();
  for (std::size_t i = size; i > 0 && text[i - 1] != ':'; --i) {
    if (text[i - 1] == '.') size = i - 1;
  }
  return text.substr(0, size);
}

[[gnu::noinline]] std::optional<std::int64_t> readAnyText(std::string_view text) {
  std::string_view rest = text;
  const std::string_view last = takeLastField(rest);
  const auto seconds = readInteger(last.substr(0, last.find('.')));
  const auto minutes = readLastFieldOrZero(rest);
  const auto hours = readLastFieldOrZero(rest);
  if (!seconds || !minutes || !hours) return std::nullopt;
  return sumOf(*seconds, *minutes, *hours);
}

// Not a std::optional: g++ puts one together in memory, in two pieces, and reads it back in one,
// which takes longer than the reading itself.
struct Reading {
  std::int64_t seconds;
  bool valid;
};

Reading readUnusualText(std::string_view text) {
  text = trimmed(text);
  const int seconds = readClockText(withoutFraction(text));
  if (seconds >= 0) return {seconds, true};
  const std::optional<std::int64_t> any = readAnyText(text);
  return {any.value_or(0), any.has_value()};
}

// Out of line, both, so that the ways before them need no stack.
[[noreturn, gnu::noinline]] void stopAt(std::string_view text) {
  fatalError("QV_TimeHelper: hmsToSeconds can't read \"" + std::string(text) + "\"");
}
[[gnu::noinline]] std::int64_t readUnusualTextOrStop(std::string_view text) {
  const Reading reading = readUnusualText(text);
  if (!reading.valid) stopAt(text);
  return reading.seconds;
}

}  // namespace

std::string QV_TimeHelper::secondsToHms(std::int64_t seconds) {
  const bool everyday = 0 <= seconds && seconds < 360000;
  return everyday ? everydayText(static_cast<unsigned>(seconds)) : anyText(seconds);
}

std::string QV_TimeHelper::secondsToHmsDigits(std::int64_t seconds) {
  if (seconds < 1) return "";
  const Fields fields = fieldsOf(seconds);
  const int below = fields.minutes * 100 + fields.seconds;
  return std::to_string(fields.hours * std::int64_t{10000} + (fields.hours < 0 ? -below : below));
}

std::optional<std::int64_t> QV_TimeHelper::tryHmsToSeconds(std::string_view text) {
  const int seconds = readClockText(text);
  const Reading reading = seconds >= 0 ? Reading{seconds, true} : readUnusualText(text);
  return reading.valid ? std::optional(reading.seconds) : std::nullopt;
}

std::int64_t QV_TimeHelper::hmsToSeconds(std::string_view text) {
  const int seconds = readClockText(text);
  return seconds >= 0 ? seconds : readUnusualTextOrStop(text);
}

}  // namespace qv_commons
