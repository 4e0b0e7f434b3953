// The shortest decimal text of a double that reads back as the same double.
//
//     qv_commons::DecimalText width(375);      // width.view() == "375.0"
//     qv_commons::DecimalText height(1194.5);  // height.view() == "1194.5"
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "qv_commons/support/shortest_decimal.h"

namespace qv_commons {

// Always positional and always with a fraction: whole numbers end in ".0", a minus sign comes
// first, also for -0.0. Not a number and the infinities give "nan", "inf" and "-inf". Independent
// of the locale; no allocation; any thread.
//
// Written here because floating-point std::to_chars is missing from the C++ library of the oldest
// system that the library runs on.
class DecimalText {
 public:
  explicit DecimalText(double value) { write(value); }

  std::string_view view() const { return {buffer_.data() + begin_, end_ - begin_}; }

 private:
  void write(double value);
  bool writeThousandths(double value);
  void writeAny(double value);
  void writeWhole(ShortestDecimal decimal);
  void writeMixed(ShortestDecimal decimal);
  void writeFraction(ShortestDecimal decimal);
  void take(std::string_view text);
  void endAfterBlock(std::size_t block);

  // The longest text, of the smallest numbers: "-0." and 324 digits.
  std::array<char, 327> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace qv_commons
