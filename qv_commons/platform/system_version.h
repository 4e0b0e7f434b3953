// The run-time test of the operating system's version.
#pragma once

#include <compare>

namespace qv_commons {

// 13.4 is {13, 4, 0}.
struct OperatingSystemVersion {
  int majorVersion = 0;
  int minorVersion = 0;
  int patchVersion = 0;

  friend auto operator<=>(const OperatingSystemVersion&, const OperatingSystemVersion&) = default;
};

// The first version with light and dark looks, and with screens that can be made modal in
// presentation.
inline constexpr OperatingSystemVersion kSystemVersion13 = {13, 0, 0};

class SystemVersion {
 public:
  virtual ~SystemVersion() = default;

  // Whether the running system is that version or a later one. Main thread.
  virtual bool isOperatingSystemAtLeastVersion(const OperatingSystemVersion& version) const = 0;
};

}  // namespace qv_commons
