// The phone that the tour plays, so that its texts are the same wherever it runs.
#pragma once

#include "qv_commons/platform/platform.h"

namespace host {

class PlayedPhone final : public qv_commons::Device,
                          public qv_commons::Languages,
                          public qv_commons::Screen {
 public:
  // `desktop` with this phone in place of the desktop's own device, languages and screen. Only the
  // look, light or dark, stays the desktop's.
  explicit PlayedPhone(const qv_commons::Platform& desktop);

  const qv_commons::Platform& platform() const { return platform_; }

  std::string systemVersion() const override { return "14.4"; }
  std::string localizedModel() const override { return "iPhone"; }
  std::vector<std::string> preferredLanguages() const override { return {"en-GB"}; }
  qv_commons::Size bounds() const override { return {375, 812}; }
  qv_commons::UserInterfaceStyle userInterfaceStyle() const override {
    return desktop_.screen.userInterfaceStyle();
  }

 private:
  const qv_commons::Platform& desktop_;
  qv_commons::Platform platform_;
};

}  // namespace host
