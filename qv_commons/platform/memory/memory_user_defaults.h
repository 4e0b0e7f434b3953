// The app's settings in memory.
//
//     platform.userDefaults().values["QV_AgeGate_Shown"] = true;  // the user comes back
#pragma once

#include <map>
#include <string>

#include "qv_commons/platform/memory/record.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::memory {

class MemoryUserDefaults final : public UserDefaults {
 public:
  explicit MemoryUserDefaults(Record& record) : record_(record) {}

  std::map<std::string, bool, std::less<>> values;
  std::map<std::string, bool, std::less<>> committed;  // what the app starts with if killed now

  bool boolForKey(std::string_view key) const override {
    record_.add("userDefaults.boolForKey ", key);
    const auto found = values.find(key);
    return found != values.end() && found->second;
  }

  void setBool(bool value, std::string_view key) override {
    record_.add("userDefaults.setBool ", value ? "true " : "false ", key);
    values.insert_or_assign(std::string(key), value);
  }

  void commit() override {
    record_.add("userDefaults.commit");
    committed = values;
  }

 private:
  Record& record_;
};

}  // namespace qv_commons::memory
