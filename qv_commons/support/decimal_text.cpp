#include "qv_commons/support/decimal_text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "qv_commons/support/shortest_decimal.h"

namespace qv_commons {
namespace {

// Three digits, and how many of them are left of a fraction without the zeros at its end; of
// "000" one is left.
struct Triple {
  char text[3];
  std::uint8_t significant;
};

constexpr std::array<Triple, 1000> makeTriples() {
  std::array<Triple, 1000> triples{};
  for (unsigned value = 0; value < triples.size(); ++value) {
    const auto digit = [value](unsigned unit) {
      return static_cast<char>('0' + value / unit % 10);
    };
    triples[value] = {{digit(100), digit(10), digit(1)}, 3};
    if (value % 10 == 0) triples[value].significant = value % 100 == 0 ? 1 : 2;
  }
  return triples;
}

constexpr std::array<Triple, 1000> kTriples = makeTriples();

void writeNine(char* out, std::uint32_t value) {
  const std::uint32_t thousands = value / 1000;
  const std::uint32_t millions = thousands / 1000;
  std::memcpy(out, kTriples[millions].text, 3);
  std::memcpy(out + 3, kTriples[thousands - 1000 * millions].text, 3);
  std::memcpy(out + 6, kTriples[value - 1000 * thousands].text, 3);
}

// The digits of a number below 10^18 without zeros at both ends, and its power of ten.
class Digits {
 public:
  explicit Digits(ShortestDecimal decimal) : exponent_(decimal.exponent) {
    constexpr std::uint64_t kBillion = 1'000'000'000;
    writeNine(text_.data(), static_cast<std::uint32_t>(decimal.digits / kBillion));
    writeNine(text_.data() + 9, static_cast<std::uint32_t>(decimal.digits % kBillion));
    while (text_[begin_] == '0') ++begin_;
    while (text_[end_ - 1] == '0') --end_;
  }

  std::string_view view() const { return {text_.data() + begin_, end_ - begin_}; }

  // How many of the number's digits stand before its point; below zero: how many zeros after it.
  int beforePoint() const { return static_cast<int>(text_.size() - begin_) + exponent_; }

 private:
  std::array<char, 18> text_;
  std::size_t begin_ = 0;
  std::size_t end_ = text_.size();
  int exponent_;
};

}  // namespace

void DecimalText::write(double value) {
  if (!writeThousandths(value)) writeAny(value);
}

// Screen sizes are whole points, or have a fraction of few digits. Where `value` is the double
// nearest to a number of thousandths, that number is the text: it has at most seven digits, no two
// decimals of up to 15 digits have the same double, so no other short one reads back as `value`.
// The division gives the nearest double because both operands are exact (IEEE 754). No branch on
// the number of digits, because it would often be predicted wrongly: the text is cut out of one
// with zeros at both ends.
inline bool DecimalText::writeThousandths(double value) {
  if (!(value > 0 && value < 10'000)) return false;
  const auto thousandths =
      static_cast<std::uint32_t>(static_cast<std::int64_t>(value * 1000 + 0.5));
  if (thousandths / 1000.0 != value) return false;

  const std::uint32_t whole = thousandths / 1000;
  const std::uint32_t thousands = whole / 1000;
  const Triple& fraction = kTriples[thousandths - 1000 * whole];
  buffer_[0] = static_cast<char>('0' + thousands);
  std::memcpy(&buffer_[1], kTriples[whole - 1000 * thousands].text, 3);
  buffer_[4] = '.';
  std::memcpy(&buffer_[5], fraction.text, 3);
  begin_ = std::size_t{whole < 10} + std::size_t{whole < 100} + std::size_t{whole < 1000};
  end_ = 5 + std::size_t{fraction.significant};
  return true;
}

void DecimalText::writeAny(double value) {
  if (std::isnan(value)) return append("nan");
  if (std::signbit(value)) append("-");
  const double magnitude = std::abs(value);
  if (std::isinf(value)) return append("inf");
  if (magnitude == 0) return append("0.0");

  const Digits all(shortestDecimal(magnitude));
  const std::string_view digits = all.view();
  const int point = all.beforePoint();
  const auto before = static_cast<std::size_t>(std::max(point, 0));
  const std::size_t whole = std::min(before, digits.size());
  append(whole == 0 ? "0" : digits.substr(0, whole));
  if (whole != 0) appendZeros(before - whole);
  append(".");
  if (point < 0) appendZeros(static_cast<std::size_t>(-point));
  append(whole == digits.size() ? "0" : digits.substr(whole));
}

void DecimalText::append(std::string_view text) {
  std::memcpy(&buffer_[end_], text.data(), text.size());
  end_ += text.size();
}

void DecimalText::appendZeros(std::size_t count) {
  std::memset(&buffer_[end_], '0', count);
  end_ += count;
}

}  // namespace qv_commons
