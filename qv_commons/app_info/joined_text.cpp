#include "qv_commons/app_info/joined_text.h"

#include <algorithm>
#include <cstddef>

namespace qv_commons {

std::string joinedText(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text(size, '\0');
  char* out = text.data();
  for (const std::string_view piece : pieces) out = std::copy(piece.begin(), piece.end(), out);
  return text;
}

}  // namespace qv_commons
