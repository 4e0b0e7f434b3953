// The duration texts of QV_TimeHelper.

#include <array>
#include <charconv>
#include <limits>

#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/time/time_helper.h"
#include "qv_commons/time/white_space.h"

namespace qv_commons {
namespace {

// The usual texts, of eight characters at most, are written and read as one number that has a
// character in each byte, the first one in the lowest. A branch on the length would often be
// predicted wrongly, and then take longer than all the rest.

// Compilers make one load of it, whatever the machine's order of bytes.
constexpr std::uint32_t fourCharacters(const char* at) {
  const auto byte = [at](int i) {
    return std::uint32_t{static_cast<unsigned char>(at[i])} << (8 * i);
  };
  return byte(0) | byte(1) | byte(2) | byte(3);
}

// The other way round. Compilers make one store of it.
void writeEight(char* out, std::uint64_t characters) {
  const auto write = [=](int i) { out[i] = static_cast<char>(characters >> (8 * i)); };
  write(0), write(1), write(2), write(3), write(4), write(5), write(6), write(7);
}

constexpr std::uint64_t kClockZeros = fourCharacters("00:0") | std::uint64_t{fourCharacters("0:00")}
                                                                   << 32;

// "00" to "99", each as such a number.
constexpr auto kPairs = [] {
  std::array<std::uint16_t, 100> pairs{};
  for (unsigned value = 0; value < 100; ++value) {
    pairs[value] = static_cast<std::uint16_t>(('0' + value / 10) | ('0' + value % 10) << 8);
  }
  return pairs;
}();

// For less than 100 hours: "hh:mm:ss" without the characters that a clock does not show.
std::string clockText(unsigned seconds) {
  const unsigned minutes = seconds / 60;
  const unsigned hours = seconds / 3600;
  const std::uint64_t secondsPair = kPairs[seconds - 60 * minutes];
  const std::uint64_t minutesPair = kPairs[minutes - 60 * hours];
  const std::uint64_t characters =
      kPairs[hours] | ':' << 16 | (minutesPair | ':' << 16 | secondsPair << 24) << 24;
  const std::size_t size = 5 + 2 * std::size_t{hours > 0} + std::size_t{hours > 9};
  std::string text("00:00:00");  // of a fixed size, which the compiler makes without a call
  writeEight(text.data(), characters >> (64 - 8 * size));
  text.erase(size);
  return text;
}

// The seconds of "hh:mm:ss" and of its last four, five, six or seven characters; -1 for any other
// text, which may be a duration all the same.
//
// Exclusive or with "00:00:00" leaves the digits' values and 0 for the colons. A byte that is now
// above 9, or a colon's above 0, sets its highest bit when the distance to 128 is added, or has it
// set. Ten times the number plus the number moved down by one place has the value of each field in
// the byte of its tens. (Daniel Lemire, "Quickly parsing eight digits", 2018, reads digits so.)
inline int readClockText(std::string_view text) {
  constexpr std::uint64_t kToTop = 0x7676'7F76'767F'7676;
  constexpr std::uint64_t kTop = 0x8080'8080'8080'8080;
  const std::size_t size = text.size();
  if (size < 4) return -1;
  const std::uint64_t first = fourCharacters(text.data());
  const std::uint64_t last = fourCharacters(text.data() + size - 4);
  const std::size_t lacking = 8 * (8 - size) % 64;  // bits; anything if there are too many
  const std::uint64_t digits =
      (first << lacking | last << 32) ^ (kClockZeros >> lacking << lacking);
  const bool wrong = (((digits + kToTop) | digits) & kTop) != 0;
  if (wrong | (size > 8)) return -1;

  const std::uint64_t pairs = digits * 10 + (digits >> 8);
  const auto field = [pairs](int tens) { return static_cast<int>(pairs >> (8 * tens) & 0xFF); };
  return 3600 * field(0) + 60 * field(3) + field(6);
}

// Writes at `out` what printf writes for "%02d", and gives the end.
char* writeTwoDigits(char* out, int value) {
  if (value < 0) *out++ = '-';
  const int size = value < 0 ? -value : value;
  if (size > 9 || value >= 0) *out++ = static_cast<char>('0' + size / 10);
  *out++ = static_cast<char>('0' + size % 10);
  return out;
}

// Out of line, so that the way to the others needs no stack.
[[gnu::noinline]] std::string anyText(std::int64_t seconds) {
  std::array<char, std::string_view("-2147483648:-59:-59").size()> text;
  char* out = text.data();
  if (seconds / 3600 != 0) {
    // As many of the count's low bits as there is room for.
    const std::int64_t hours = static_cast<std::int32_t>(seconds / 3600);
    out = std::to_chars(out, out + text.size(), hours).ptr;
    *out++ = ':';
  }
  out = writeTwoDigits(out, static_cast<int>(seconds / 60 % 60));
  *out++ = ':';
  out = writeTwoDigits(out, static_cast<int>(seconds % 60));
  return {text.data(), out};
}

// An optional sign and digits, nothing else, within 64 bits.
bool readInteger(std::string_view text, std::int64_t& value) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const char* const end = text.data() + text.size();
  const auto [at, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && at == end;
}

// False if the product or the sum overflows.
bool addProduct(std::int64_t& sum, std::int64_t value, std::int64_t factor) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (value > Limits::max() / factor || value < Limits::min() / factor) return false;
  const std::int64_t product = value * factor;
  if (product > 0 ? sum > Limits::max() - product : sum < Limits::min() - product) return false;
  sum += product;
  return true;
}

// Takes the last field that is not empty off the end of `text`; "" if none is left.
std::string_view takeLastField(std::string_view& text) {
  while (text.ends_with(':')) text.remove_suffix(1);
  const std::string_view field = text.substr(text.rfind(':') + 1);  // all if there is no colon
  text.remove_suffix(field.size());
  return field;
}

bool readAnyText(std::string_view text, std::int64_t& sum) {
  sum = 0;
  for (const int unit : {1, 60, 3600}) {
    std::string_view field = takeLastField(text);
    if (unit == 1) {
      field = field.substr(0, field.find('.'));
    } else if (field.empty()) {
      break;
    }
    std::int64_t value = 0;
    if (!readInteger(field, value) || !addProduct(sum, value, unit)) return false;
  }
  return true;
}

// Not a std::optional, which g++ puts together in memory.
bool readUnusualText(std::string_view text, std::int64_t& seconds) {
  text = trimmed(text);
  seconds = readClockText(text.substr(0, text.find('.', text.rfind(':') + 1)));
  return seconds >= 0 || readAnyText(text, seconds);
}

// Out of line, for the same reason as `anyText`.
[[gnu::noinline]] std::int64_t readUnusualTextOrStop(std::string_view text) {
  std::int64_t seconds = 0;
  if (readUnusualText(text, seconds)) return seconds;
  fatalError(joinedText({"QV_TimeHelper: hmsToSeconds can't read \"", text, "\""}));
}

}  // namespace

std::string QV_TimeHelper::secondsToHms(std::int64_t seconds) {
  const bool isEveryday = 0 <= seconds && seconds < 100 * 3600;
  return isEveryday ? clockText(static_cast<unsigned>(seconds)) : anyText(seconds);
}

std::string QV_TimeHelper::secondsToHmsDigits(std::int64_t seconds) {
  if (seconds < 1) return "";
  const std::int64_t hours = static_cast<std::int32_t>(seconds / 3600);
  const std::int64_t below = seconds / 60 % 60 * 100 + seconds % 60;
  return std::to_string(hours * 10000 + (hours < 0 ? -below : below));
}

std::optional<std::int64_t> QV_TimeHelper::tryHmsToSeconds(std::string_view text) {
  std::int64_t seconds = readClockText(text);
  const bool valid = seconds >= 0 || readUnusualText(text, seconds);
  return valid ? std::optional(seconds) : std::nullopt;
}

std::int64_t QV_TimeHelper::hmsToSeconds(std::string_view text) {
  const int seconds = readClockText(text);
  return seconds >= 0 ? seconds : readUnusualTextOrStop(text);
}

}  // namespace qv_commons
