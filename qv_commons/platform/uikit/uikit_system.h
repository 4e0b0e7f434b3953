// The device, the system and the app's settings by UIKit and Foundation.
#pragma once

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/calendar.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::uikit {

class UIKitDevice final : public Device {
 public:
  std::string localizedModel() const override;
  std::string systemVersion() const override;
  bool isSystemVersionAtLeast(int major) const override;
  std::vector<std::string> preferredLanguages() const override;
  Size screenBounds() const override;
  UserInterfaceStyle userInterfaceStyle() const override;
};

// NSDate.
class UIKitClock final : public Clock {
 public:
  Instant now() const override;
};

// The current NSCalendar.
class UIKitCalendar final : public Calendar {
 public:
  std::optional<std::int64_t> yearsBetween(Instant from, Instant to) const override;
  std::optional<Instant> dateByAddingYears(Instant date, int years) const override;
};

// The standard NSUserDefaults, which persist by themselves.
class UIKitUserDefaults final : public UserDefaults {
 public:
  bool boolForKey(std::string_view key) const override;
  void setBool(bool value, std::string_view key) override;
  void commit() override {}  // the system persists by itself
};

class UIKitApplication final : public Application {
 public:
  void print(std::string_view line) override;  // as the platform's own print statement
  void openURL(const URL& url) override;
};

}  // namespace qv_commons::uikit
