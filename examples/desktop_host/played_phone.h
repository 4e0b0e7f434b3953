// The phone that the tour plays, so that its texts are the same wherever it runs.
#pragma once

#include <vector>

#include "qv_commons/platform/platform.h"
#include "qv_commons/support/url.h"

namespace host {

class PlayedPhone final : public qv_commons::Device,
                          public qv_commons::Languages,
                          public qv_commons::Screen,
                          public qv_commons::Application {
 public:
  // `desktop` with this phone in place of the desktop's own device, languages, screen and
  // application. Only the look, light or dark, stays the desktop's.
  explicit PlayedPhone(const qv_commons::Platform& desktop);

  const qv_commons::Platform& platform() const { return platform_; }

  // The links that would have opened in other programs.
  const std::vector<qv_commons::URL>& openedLinks() const { return openedLinks_; }

  std::string systemVersion() const override { return "14.4"; }
  std::string localizedModel() const override { return "iPhone"; }
  std::vector<std::string> preferredLanguages() const override { return {"en-GB"}; }
  qv_commons::Size bounds() const override { return {375, 812}; }
  void openURL(const qv_commons::URL& url) override { openedLinks_.push_back(url); }
  qv_commons::UserInterfaceStyle userInterfaceStyle() const override {
    return desktop_.screen.userInterfaceStyle();
  }

 private:
  const qv_commons::Platform& desktop_;
  qv_commons::Platform platform_;
  std::vector<qv_commons::URL> openedLinks_;
};

}  // namespace host
