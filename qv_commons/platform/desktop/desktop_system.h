// What the desktop says of itself: device and clock; and the two small ways out, by the
// application.
#pragma once

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/desktop/desktop_look.h"
#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/device.h"

namespace qv_commons::desktop {

// A monitor's extent in points, which the toolkit gives rounded to whole ones: `rounded` is 533 for
// 800 pixels at a scale of 1.5, and the result 533.33. Of the numbers of pixels that round so, an
// even one is taken, as monitors have.
double pointsOf(int rounded, double scale);

// The host's setting; else from LANGUAGE, LC_ALL, LC_MESSAGES or LANG; empty if they name no
// language.
std::vector<std::string> preferredLanguages(const DesktopSettings& settings);

class DesktopDevice final : public Device {
 public:
  // Both outlive it.
  DesktopDevice(const DesktopLook& look, const DesktopSettings& settings)
      : look_(look), settings_(settings) {}

  // The distribution and the kind of machine, for example "Debian PC".
  std::string localizedModel() const override;

  // The distribution's version, for example "12"; the kernel's if it has none.
  std::string systemVersion() const override;

  bool isSystemVersionAtLeast(int major) const override { return settings_.systemVersion >= major; }

  std::vector<std::string> preferredLanguages() const override;

  // Of the primary monitor.
  Size screenBounds() const override;
  UserInterfaceStyle userInterfaceStyle() const override;

 private:
  const DesktopLook& look_;
  const DesktopSettings& settings_;
};

class DesktopClock final : public Clock {
 public:
  Instant now() const override;
};

class DesktopApplication final : public Application {
 public:
  void print(std::string_view line) override;  // to the standard output stream

  // The link reaches the desktop to the byte.
  void openURL(const URL& url) override;
};

}  // namespace qv_commons::desktop
