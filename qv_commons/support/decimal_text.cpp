#include "qv_commons/support/decimal_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "qv_commons/support/shortest_decimal.h"

namespace qv_commons {

void DecimalText::write(double value) {
  if (std::isnan(value)) return append("nan");
  if (std::signbit(value)) append("-");
  const double magnitude = std::abs(value);
  if (std::isinf(value)) return append("inf");
  if (magnitude == 0) return append("0.0");

  const ShortestDecimal shortest = shortestDecimal(magnitude);
  std::array<char, 20> buffer;  // 2^64 has 20 digits
  const char* end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), shortest.digits).ptr;
  std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const int point = static_cast<int>(digits.size()) + shortest.exponent;  // digits before it
  digits = digits.substr(0, digits.find_last_not_of('0') + 1);

  const auto before = static_cast<std::size_t>(std::max(point, 0));
  const std::size_t whole = std::min(before, digits.size());
  append(whole == 0 ? "0" : digits.substr(0, whole));
  if (whole != 0) appendZeros(before - whole);
  append(".");
  if (point < 0) appendZeros(static_cast<std::size_t>(-point));
  append(whole == digits.size() ? "0" : digits.substr(whole));
}

void DecimalText::append(std::string_view text) {
  std::copy(text.begin(), text.end(), buffer_.begin() + static_cast<std::ptrdiff_t>(size_));
  size_ += text.size();
}

void DecimalText::appendZeros(std::size_t count) {
  std::fill_n(buffer_.begin() + static_cast<std::ptrdiff_t>(size_), count, '0');
  size_ += count;
}

}  // namespace qv_commons
