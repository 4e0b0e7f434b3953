// A range of a text.
#pragma once

#include <cstddef>

namespace qv_commons {

// In UTF-16 code units.
struct TextRange {
  std::size_t location = 0;
  std::size_t length = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

}  // namespace qv_commons
