#include "qv_commons/support/decimal_text.h"

#include <array>
#include <charconv>
#include <cinttypes>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "qv_commons/app_info/joined_text.h"

namespace qv_commons {
namespace {

// Below a million.
std::string thousandthsText(unsigned thousandths) {
  std::string text("999999.999");
  char* out = std::to_chars(text.data(), &text.back(), std::uint64_t{thousandths / 1000}).ptr;
  *out++ = '.';
  unsigned fraction = thousandths % 1000;
  do {
    *out++ = static_cast<char>('0' + fraction / 100);
    fraction = fraction % 100 * 10;
  } while (fraction != 0);
  text.erase(static_cast<std::size_t>(out - text.data()));
  return text;
}

// The number digits * 10^exponent.
struct Decimal {
  std::int64_t digits;
  int exponent;
};

Decimal rounded(double magnitude, int digitCount) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.*e", digitCount - 1, magnitude);
  std::int64_t digits = 0;
  const char* at = text.data();
  for (; *at != 'e'; ++at) {
    const bool isDigit = *at >= '0' && *at <= '9';  // and not the locale's decimal point
    if (isDigit) digits = digits * 10 + (*at - '0');
  }
  return {digits, std::atoi(at + 1) - (digitCount - 1)};
}

// The text that is read has no decimal point, which would have to be the locale's.
double valueOf(Decimal decimal) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%" PRId64 "e%d", decimal.digits, decimal.exponent);
  return std::strtod(text.data(), nullptr);
}

Decimal shortestDecimal(double magnitude) {
  Decimal shortest = rounded(magnitude, 17);  // as many digits always read back
  for (int digitCount = 16; digitCount > 0; --digitCount) {
    Decimal decimal = rounded(magnitude, digitCount);
    // The next double below a power of two is only half as far away as the one above. So the
    // nearest decimal, if below, may read back as another double, and the one above it not.
    if (valueOf(decimal) != magnitude) ++decimal.digits;
    if (valueOf(decimal) != magnitude) break;
    shortest = decimal;
  }
  return shortest;
}

std::string positional(Decimal decimal) {
  const std::string digits = std::to_string(decimal.digits);
  const auto zeros = [](int count) { return std::string(static_cast<std::size_t>(count), '0'); };
  if (decimal.exponent >= 0) return joinedText({digits, zeros(decimal.exponent), ".0"});
  const int whole = static_cast<int>(digits.size()) + decimal.exponent;
  if (whole <= 0) return joinedText({"0.", zeros(-whole), digits});
  const std::string_view start(digits.data(), static_cast<std::size_t>(whole));
  return joinedText({start, ".", digits.data() + whole});
}

std::string magnitudeText(double magnitude) {
  // Screen sizes are whole points or have a short fraction. No two decimals of up to 15 digits have
  // the same nearest double, so no other one is as short. The division gives the nearest double
  // because both operands are exact (IEEE 754).
  if (magnitude < 1e6) {
    const double halfAbove = magnitude * 1000 + 0.5;  // the cast rounds down
    const auto thousandths = static_cast<unsigned>(halfAbove);
    if (thousandths / 1000.0 == magnitude) return thousandthsText(thousandths);
  }
  if (!std::isfinite(magnitude)) return std::isnan(magnitude) ? "nan" : "inf";
  return positional(shortestDecimal(magnitude));
}

}  // namespace

std::string decimalText(double value) {
  const bool isNegative = std::signbit(value) && !std::isnan(value);
  return isNegative ? joinedText({"-", magnitudeText(-value)}) : magnitudeText(value);
}

}  // namespace qv_commons
