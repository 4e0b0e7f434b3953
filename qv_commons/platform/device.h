// The device and its languages.
#pragma once

#include <string>
#include <vector>

namespace qv_commons {

class Device {
 public:
  virtual ~Device() = default;

  virtual std::string systemVersion() const = 0;   // for example "14.4"
  virtual std::string localizedModel() const = 0;  // for example "iPhone"
};

class Languages {
 public:
  virtual ~Languages() = default;

  // The user's languages, the preferred one first, for example {"en-GB", "de-DE"}; may be empty.
  virtual std::vector<std::string> preferredLanguages() const = 0;
};

}  // namespace qv_commons
