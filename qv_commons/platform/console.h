// Where the library's two diagnostic lines go.
#pragma once

#include <string_view>

namespace qv_commons {

class Console {
 public:
  virtual ~Console() = default;

  // Prints `line` and a line end.
  virtual void print(std::string_view line) = 0;
};

}  // namespace qv_commons
