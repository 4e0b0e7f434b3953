// The app's persisted settings. Main thread only.
#pragma once

#include <string_view>

namespace qv_commons {

class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  // False if the key was never written.
  virtual bool boolForKey(std::string_view key) const = 0;

  // Visible to `boolForKey` at once.
  virtual void setBool(bool value, std::string_view key) = 0;

  // Persists everything set since the last call, all of it or none. A platform that persists by
  // itself does nothing here.
  virtual void commit() = 0;
};

}  // namespace qv_commons
