// The main screen.
#pragma once

#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons {

// In points: a pixel of the screen divided by its scale.
struct Size {
  double width = 0;
  double height = 0;
};

class Screen {
 public:
  virtual ~Screen() = default;

  virtual Size bounds() const = 0;  // for example 375 by 667

  // The look of the system at this moment.
  virtual UserInterfaceStyle userInterfaceStyle() const = 0;
};

}  // namespace qv_commons
