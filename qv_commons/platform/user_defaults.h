// The app's persisted settings.
#pragma once

#include <string_view>

namespace qv_commons {

class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  // False where the key was never written. Main thread.
  virtual bool boolForKey(std::string_view key) const = 0;

  // Visible to `boolForKey` at once, on the disk with the next `commit`.
  virtual void setBool(bool value, std::string_view key) = 0;

  // Persists everything set since the last call, all of it or none. A platform that persists on its
  // own does nothing here.
  virtual void commit() = 0;
};

}  // namespace qv_commons
