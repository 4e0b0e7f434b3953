// What the desktop says of itself: device, languages, system version, clock; and the two small ways
// out, console and application.
#pragma once

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/console.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/system_version.h"

namespace qv_commons::desktop {

// Prints to the standard output stream.
class DesktopConsole final : public Console {
 public:
  void print(std::string_view line) override;
};

class DesktopDevice final : public Device {
 public:
  // The distribution's version, for example "12"; the kernel's where it has none.
  std::string systemVersion() const override;

  // The distribution and the kind of machine, for example "Debian PC".
  std::string localizedModel() const override;
};

// From LANGUAGE, else LC_ALL, LC_MESSAGES or LANG; empty where they name no language.
class DesktopLanguages final : public Languages {
 public:
  std::vector<std::string> preferredLanguages() const override;
};

class DesktopSystemVersion final : public SystemVersion {
 public:
  explicit DesktopSystemVersion(const OperatingSystemVersion& version) : version_(version) {}

  bool isOperatingSystemAtLeastVersion(const OperatingSystemVersion& asked) const override {
    return version_ >= asked;
  }

 private:
  OperatingSystemVersion version_;
};

class DesktopClock final : public Clock {
 public:
  double timeIntervalSince1970() const override;
};

class DesktopApplication final : public Application {
 public:
  void openURL(const URL& url) override;
};

}  // namespace qv_commons::desktop
