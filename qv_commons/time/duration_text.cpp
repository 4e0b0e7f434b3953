// The duration texts of QV_TimeHelper.

#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>

#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/time/checked_arithmetic.h"
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

// The text of most durations: those of less than 100 hours that are not negative. It is cut from a
// string of a fixed size, which is faster than making one of a size the compiler does not know.
std::string everydayText(unsigned seconds) {
  const unsigned minutes = seconds / 60;
  const unsigned hours = minutes / 60;
  std::string text("00:00:00");
  char* out = text.data();
  if (hours > 9) {
    out = writePair(out, hours);
    *out++ = ':';
  } else if (hours > 0) {
    *out++ = static_cast<char>('0' + hours);
    *out++ = ':';
  }
  out = writePair(out, minutes % 60);
  *out++ = ':';
  out = writePair(out, seconds % 60);
  text.erase(static_cast<std::size_t>(out - text.data()));
  return text;
}

std::string anyText(std::int64_t seconds) {
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

// Reads "mm:ss", "h:mm:ss" and "hh:mm:ss", the texts of `everydayText`, straight from their places.
// -1 for other texts, which may be durations all the same.
int readEverydayText(std::string_view text) {
  const std::size_t size = text.size();
  if (size != 5 && size != 7 && size != 8) return -1;
  bool valid = true;
  const auto digit = [&](std::size_t place) {
    const int value = static_cast<int>(digitOf(text[place]));
    valid &= value <= 9;
    return value;
  };
  const auto pair = [&](std::size_t place) { return 10 * digit(place) + digit(place + 1); };
  const auto colon = [&](std::size_t place) { valid &= text[place] == ':'; };

  int total = 60 * pair(size - 5) + pair(size - 2);
  colon(size - 3);
  if (size > 5) {
    total += 3600 * (size == 8 ? pair(0) : digit(0));
    colon(size - 6);
  }
  return valid ? total : -1;
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
  return text.substr(0, text.find('.', text.rfind(':') + 1));
}

std::optional<std::int64_t> readAnyText(std::string_view text) {
  std::string_view rest = text;
  const std::string_view last = takeLastField(rest);
  const auto seconds = readInteger(last.substr(0, last.find('.')));
  const auto minutes = readLastFieldOrZero(rest);
  const auto hours = readLastFieldOrZero(rest);
  if (!seconds || !minutes || !hours) return std::nullopt;
  return sumOf(*seconds, *minutes, *hours);
}

// Gives the seconds of `text` and true, or false. Not a std::optional: g++ hands those out through
// memory, in two pieces written and one read, which takes longer than the reading of most texts.
// Out of line, so that `tryHmsToSeconds` is small enough to be inlined in `hmsToSeconds`.
[[gnu::noinline]] bool readDuration(std::string_view text, std::int64_t& seconds) {
  seconds = readEverydayText(text);
  if (seconds >= 0) return true;
  text = trimmed(text);
  seconds = readEverydayText(withoutFraction(text));
  if (seconds >= 0) return true;
  const std::optional<std::int64_t> any = readAnyText(text);
  seconds = any.value_or(0);
  return any.has_value();
}

[[noreturn]] void stopAt(std::string_view text) {
  fatalError("QV_TimeHelper: hmsToSeconds can't read \"" + std::string(text) + "\"");
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
  std::int64_t seconds = 0;
  if (!readDuration(text, seconds)) return std::nullopt;
  return seconds;
}

std::int64_t QV_TimeHelper::hmsToSeconds(std::string_view text) {
  const std::optional<std::int64_t> seconds = tryHmsToSeconds(text);
  if (!seconds) stopAt(text);
  return *seconds;
}

}  // namespace qv_commons
