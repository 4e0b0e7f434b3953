// The support e-mail over real windows: what the library's core and this adapter make together.
#pragma once

#include <QWidget>
#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <string>

#include "qv_commons/support/support_helper.h"

#include "tests/desktop/active_window.h"
#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {

class SupportMailTest : public testing::Test {
 protected:
  struct Host final : QV_SupportHelperDelegate {
    int completions = 0;
    void onCompletion() override { ++completions; }
  };

  SupportMailTest() {
    folder_.write("bundle/Info.plist", "<plist version=\"1.0\"><dict/></plist>");
    window_.resize(375, 667);
    window_.show();
    activate(window_);
  }

  void request(const std::string& metadata) {
    helper_->contactSupport(*screen_, "support@example.com", "Help", {}, std::nullopt, metadata,
                            host_);
  }

  TestFolder folder_;
  QWidget window_;
  DesktopPlatform desktop_{{.bundleDirectory = folder_.path("bundle"),
                            .languages = {"en"},
                            .dataDirectory = folder_.path("data"),
                            .mailWays = {MailWay::sendmail},
                            .sendmailProgram = folder_.writeProgram("sendmail", "cat >/dev/null"),
                            .senderAddress = "ada@example.com"}};
  ScopedPlatform scope_{desktop_.platform()};
  std::shared_ptr<ViewController> screen_ = desktop_.viewController(window_);
  std::shared_ptr<QV_SupportHelper> helper_ = QV_SupportHelper::create();
  std::shared_ptr<Host> host_ = std::make_shared<Host>();
};

}  // namespace qv_commons::desktop
