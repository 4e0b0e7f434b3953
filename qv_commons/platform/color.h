// A colour.
#pragma once

#include <memory>

namespace qv_commons {

// Red, green, blue and alpha, each from 0.0 to 1.0; or a colour of the platform's own.
struct Color {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  // A colour object of the platform's that the host passed in through its adapter, which passes it
  // on unchanged: it may follow the look of the screen. The four components don't count then.
  std::shared_ptr<const void> native = nullptr;

  friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace qv_commons
