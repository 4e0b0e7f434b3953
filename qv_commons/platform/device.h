// The device, its system and its screen. Main thread only.
#pragma once

#include <string>
#include <vector>

#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons {

// In points: a pixel of the screen divided by its scale.
struct Size {
  double width = 0;
  double height = 0;
};

class Device {
 public:
  virtual ~Device() = default;

  virtual std::string localizedModel() const = 0;  // for example "iPhone"

  virtual std::string systemVersion() const = 0;  // for example "14.4"

  // Whether the running system is of that major version or a later one. 13 is the first with light
  // and dark looks, with screens that can be made modal in presentation, and with a published text
  // field in the search bar.
  virtual bool isSystemVersionAtLeast(int major) const = 0;

  // The user's languages, the preferred one first, for example {"en-GB", "de-DE"}; may be empty.
  virtual std::vector<std::string> preferredLanguages() const = 0;

  // The main screen: its size, for example 375 by 667, and its look at this moment.
  virtual Size screenBounds() const = 0;
  virtual UserInterfaceStyle userInterfaceStyle() const = 0;
};

}  // namespace qv_commons
