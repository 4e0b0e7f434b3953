// The decimal text of any double has digits on both sides of one point and reads back as the same.
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

#include "qv_commons/support/decimal_text.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::fuzz::check;
  double value = 0;
  if (size < sizeof value) return 0;
  std::memcpy(&value, data, sizeof value);
  const std::string text = qv_commons::decimalText(value);
  if (!std::isfinite(value)) return 0;
  const std::size_t point = text.find('.');
  check(point != std::string::npos && point != 0, "there are digits before the point");
  check(point + 1 < text.size() && text.find_first_not_of("0123456789", point + 1) == text.npos,
        "there are digits and nothing else after it");
  char* end = nullptr;
  const double back = std::strtod(text.c_str(), &end);
  check(*end == '\0' && std::memcmp(&back, &value, sizeof value) == 0, "reads back");
  return 0;
}
