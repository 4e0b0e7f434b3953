// The device, its system and its screen. Main thread only.
#pragma once

#include <compare>
#include <string>
#include <vector>

#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons {

// 13.4 is {13, 4, 0}.
struct OperatingSystemVersion {
  int majorVersion = 0;
  int minorVersion = 0;
  int patchVersion = 0;

  friend auto operator<=>(const OperatingSystemVersion&, const OperatingSystemVersion&) = default;
};

// The first version with light and dark looks, with screens that can be made modal in presentation,
// and with a published text field in the search bar.
inline constexpr OperatingSystemVersion kSystemVersion13 = {13, 0, 0};

// In points: a pixel of the screen divided by its scale.
struct Size {
  double width = 0;
  double height = 0;
};

class Device {
 public:
  virtual ~Device() = default;

  virtual std::string localizedModel() const = 0;  // for example "iPhone"

  // The running system's version, for example "14.4", and whether it is `version` or a later one.
  virtual std::string systemVersion() const = 0;
  virtual bool isOperatingSystemAtLeastVersion(const OperatingSystemVersion& version) const = 0;

  // The user's languages, the preferred one first, for example {"en-GB", "de-DE"}; may be empty.
  virtual std::vector<std::string> preferredLanguages() const = 0;

  // The main screen: its size, for example 375 by 667, and its look at this moment.
  virtual Size screenBounds() const = 0;
  virtual UserInterfaceStyle userInterfaceStyle() const = 0;
};

}  // namespace qv_commons
