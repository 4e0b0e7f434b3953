// The decimal text of any double has digits on both sides of one point and reads back as the same.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "qv_commons/support/decimal_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  double value = 0;
  if (size < sizeof value) return 0;
  std::memcpy(&value, data, sizeof value);
  const std::string text(qv_commons::DecimalText(value).view());
  if (!std::isfinite(value)) return 0;
  const std::size_t point = text.find('.');
  if (point == std::string::npos || point == 0 || point + 1 == text.size()) std::abort();
  if (text.find_first_not_of("0123456789", point + 1) != std::string::npos) std::abort();
  char* end = nullptr;
  const double back = std::strtod(text.c_str(), &end);
  if (*end != '\0' || std::memcmp(&back, &value, sizeof value) != 0) std::abort();
  return 0;
}
