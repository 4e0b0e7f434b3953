#include "qv_commons/support/decimal_text.h"

#include <cmath>
#include <cstdint>
#include <cstring>

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

constexpr std::size_t kBlock = 18;

// Writes a number below 10^18 with all zeros before it.
void writeBlock(char* out, std::uint64_t number) {
  constexpr std::uint64_t kBillion = 1'000'000'000;
  writeNine(out, static_cast<std::uint32_t>(number / kBillion));
  writeNine(out + 9, static_cast<std::uint32_t>(number % kBillion));
}

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
  const double halfAbove = value * 1000 + 0.5;  // the cast rounds down
  const auto thousandths = static_cast<std::uint32_t>(static_cast<std::int64_t>(halfAbove));
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
  const bool negative = std::signbit(value);
  if (std::isnan(value)) return take("nan");
  if (std::isinf(value)) return take(negative ? "-inf" : "inf");
  if (value == 0) return take(negative ? "-0.0" : "0.0");

  const ShortestDecimal decimal = shortestDecimal(std::abs(value));
  begin_ = 1;  // after the sign
  if (decimal.exponent >= 0) {
    writeWhole(decimal);
  } else if (decimal.exponent > -static_cast<int>(kBlock)) {
    writeMixed(decimal);
  } else {
    writeFraction(decimal);
  }
  buffer_[begin_ - 1] = '-';
  begin_ -= negative ? 1 : 0;
}

void DecimalText::take(std::string_view text) {
  std::memcpy(buffer_.data(), text.data(), text.size());
  end_ = text.size();
}

void DecimalText::writeWhole(ShortestDecimal decimal) {
  const auto zeros = static_cast<std::size_t>(decimal.exponent);
  writeBlock(&buffer_[1], decimal.digits);
  while (buffer_[begin_] == '0') ++begin_;
  std::memset(&buffer_[1 + kBlock], '0', zeros);
  std::memcpy(&buffer_[1 + kBlock + zeros], ".0", 2);
  end_ = 1 + kBlock + zeros + 2;
}

// The point is within the block, whose part before it moves down by one place.
void DecimalText::writeMixed(ShortestDecimal decimal) {
  const std::size_t whole = kBlock - static_cast<std::size_t>(-decimal.exponent);
  writeBlock(&buffer_[2], decimal.digits);
  std::memmove(&buffer_[1], &buffer_[2], whole);
  buffer_[1 + whole] = '.';
  while (buffer_[begin_] == '0' && begin_ < whole) ++begin_;
  endAfterBlock(2);
}

// The zeros before the block's digits are some of those after the point.
void DecimalText::writeFraction(ShortestDecimal decimal) {
  const std::size_t zeros = static_cast<std::size_t>(-decimal.exponent) - kBlock;
  std::memcpy(&buffer_[1], "0.", 2);
  std::memset(&buffer_[3], '0', zeros);
  writeBlock(&buffer_[3 + zeros], decimal.digits);
  endAfterBlock(3 + zeros);
}

// Without the zeros at the end of the block that begins there, but for one right after the point.
void DecimalText::endAfterBlock(std::size_t block) {
  end_ = block + kBlock;
  while (buffer_[end_ - 1] == '0' && buffer_[end_ - 2] != '.') --end_;
}

}  // namespace qv_commons
