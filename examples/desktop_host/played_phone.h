// The phone that the tour plays, so that its texts are the same wherever it runs.
#pragma once

#include <string>
#include <vector>

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/support/url.h"

namespace host {

class PlayedPhone final : public qv_commons::Device, public qv_commons::Application {
 public:
  // `desktop` with this phone in place of the desktop's own device and application. Only the look,
  // light or dark, and the version that the library takes the system for stay the desktop's.
  explicit PlayedPhone(const qv_commons::Platform& desktop);

  const qv_commons::Platform& platform() const { return platform_; }

  // The links that would have opened in other programs.
  const std::vector<qv_commons::URL>& openedLinks() const { return openedLinks_; }

  std::string localizedModel() const override { return "iPhone"; }
  std::string systemVersion() const override { return "14.4"; }
  bool isSystemVersionAtLeast(int major) const override {
    return desktop_.device.isSystemVersionAtLeast(major);
  }
  std::vector<std::string> preferredLanguages() const override { return {"en-GB"}; }
  qv_commons::Size screenBounds() const override { return {375, 812}; }
  qv_commons::UserInterfaceStyle userInterfaceStyle() const override {
    return desktop_.device.userInterfaceStyle();
  }
  void print(std::string_view line) override { desktop_.application.print(line); }
  void openURL(const qv_commons::URL& url) override { openedLinks_.push_back(url); }

 private:
  const qv_commons::Platform& desktop_;
  qv_commons::Platform platform_;
  std::vector<qv_commons::URL> openedLinks_;
};

}  // namespace host
