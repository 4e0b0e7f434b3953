// The app's persisted settings.
#pragma once

#include <string_view>

namespace qv_commons {

class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  // False where the key was never written. Main thread.
  virtual bool boolForKey(std::string_view key) const = 0;

  // Visible to `boolForKey` at once. Whether and when it reaches the disk is the platform's affair,
  // but what is written in one turn of the event loop reaches it together or not at all.
  virtual void setBool(bool value, std::string_view key) = 0;
};

}  // namespace qv_commons
