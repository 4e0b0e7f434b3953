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

  // A colour object that a host handed in through its adapter, which hands it on as it is: it may
  // be one that changes with the look of the screen. The four components don't count then.
  std::shared_ptr<const void> native = nullptr;

  friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace qv_commons
