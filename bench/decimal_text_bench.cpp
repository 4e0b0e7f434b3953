// The screen's figures as texts.
#include <QLocale>
#include <QString>
#include <array>
#include <bit>
#include <boost/lexical_cast.hpp>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fmt/format.h>
#include <glib.h>
#include <random>
#include <unicode/numberformatter.h>

#include "qv_commons/support/decimal_text.h"

#include "bench/contest.h"

namespace qv_commons::bench {
namespace {

// A text without an allocation.
class Buffer {
 public:
  char* begin() { return text_.data(); }
  char* end() { return text_.data() + text_.size(); }
  void endAt(const char* end) { size_ = static_cast<std::size_t>(end - text_.data()); }
  std::string_view view() const { return {text_.data(), size_}; }

  // Whole numbers come without a fraction from most.
  void addFraction() {
    if (view().find('.') != std::string_view::npos) return;
    std::memcpy(text_.data() + size_, ".0", 2);
    size_ += 2;
  }

 private:
  std::array<char, 400> text_;
  std::size_t size_ = 0;
};

Buffer constantText(double) {
  Buffer text;
  std::memcpy(text.begin(), "1194.5", 6);
  text.endAt(text.begin() + 6);
  return text;
}

Buffer byToChars(double value) {
  Buffer text;
  text.endAt(std::to_chars(text.begin(), text.end(), value).ptr);
  text.addFraction();
  return text;
}

Buffer byFixedToChars(double value) {
  Buffer text;
  text.endAt(std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed).ptr);
  text.addFraction();
  return text;
}

Buffer byFmt(double value) {
  Buffer text;
  text.endAt(fmt::format_to(text.begin(), "{}", value));
  text.addFraction();
  return text;
}

// The first number of digits that reads back.
Buffer bySnprintf(double value) {
  Buffer text;
  for (int digits = 1; digits <= 17; ++digits) {
    text.endAt(text.begin() + std::snprintf(text.begin(), 400, "%.*g", digits, value));
    if (std::strtod(text.begin(), nullptr) == value) break;
  }
  return text;
}

std::string byQt(double value) {
  return QString::number(value, 'g', QLocale::FloatingPointShortest).toStdString();
}

std::string byICU(double value) {
  static const auto formatter = icu::number::NumberFormatter::withLocale(icu::Locale::getRoot())
                                    .grouping(UNUM_GROUPING_OFF)
                                    .precision(icu::number::Precision::unlimited());
  UErrorCode status = U_ZERO_ERROR;
  std::string text;
  return formatter.formatDouble(value, status).toString(status).toUTF8String(text);
}

// Both with 17 digits, whether they are needed or not.
std::string byBoost(double value) {
  return boost::lexical_cast<std::string>(value);
}
Buffer byGLib(double value) {
  Buffer text;
  text.endAt(g_ascii_dtostr(text.begin(), 400, value) + std::strlen(text.begin()));
  return text;
}

std::vector<double> screenSizes() {
  constexpr std::array<double, 42> kSizes = {
      320, 568,  375,      667,      414,    736,     812,    896,    390,    844,  428,
      926, 393,  852,      430,      932,    744,     1133,   768,    1024,   810,  1080,
      820, 1180, 834,      1112,     1194,   1366,    664,    1536,   864,    1920, 1280,
      720, 1440, 1706.667, 1462.857, 1194.5, 414.125, 853.25, 1093.5, 682.667};
  std::mt19937_64 random(1);
  std::vector<double> sizes;
  while (sizes.size() < 16'384) sizes.push_back(kSizes[random() % kSizes.size()]);
  return sizes;
}

std::vector<double> anyDoubles() {
  std::mt19937_64 random(1);
  std::vector<double> all;
  while (all.size() < 16'384) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value)) all.push_back(value);
  }
  return all;
}

}  // namespace

void addDecimalTextContests() {
  Contest<double>("screen figures' text", "screen sizes", screenSizes())
      .enter("QV Commons", decimalText)
      .enter("std::to_chars", byToChars)
      .enter("{fmt}", byFmt)
      .enterUnchecked("snprintf", bySnprintf)
      .enterUnchecked("Qt", byQt)
      .enterUnchecked("ICU", byICU)
      .enterUnchecked("Boost", byBoost)
      .enterUnchecked("GLib", byGLib)
      .limit("a constant text", constantText);

  Contest<double>("screen figures' text", "any double", anyDoubles())
      .enter("QV Commons", decimalText)
      .enterUnchecked("std::to_chars with exponents", byToChars)
      .enterUnchecked("std::to_chars with all digits", byFixedToChars)
      .enterUnchecked("{fmt} with exponents", byFmt)
      .enterUnchecked("snprintf with exponents", bySnprintf)
      .enterUnchecked("Qt with exponents", byQt);
}

}  // namespace qv_commons::bench
