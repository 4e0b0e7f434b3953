// A test in which a mail composer is open over a host's window.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>
#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/desktop/active_window.h"
#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {

class ComposerTest : public testing::Test {
 protected:
  ComposerTest() {
    settings_.dataDirectory = folder_.path("data");
    settings_.languages = {"en"};
    settings_.mailWays = {MailWay::sendmail};  // whatever else this machine has
    settings_.senderAddress = "ada@example.com";
    useMailProgram("cat >\"" + folder_.path("sent") + "\"; echo \"$@\" >\"" +
                   folder_.path("arguments") + "\"");
    host_.resize(375, 667);
    host_.show();
    activate(host_);
  }

  void useMailProgram(const std::string& script) {
    settings_.sendmailProgram = folder_.writeProgram("sendmail", script);
  }

  // To be called once, after the settings have been made.
  void present(const std::string& recipient = "support@example.com",
               const std::string& subject = "Help",
               const std::string& body = "Reason:\n\nApp: x\n") {
    desktop_.emplace(settings_);
    screen_ = desktop_->viewController(host_);
    composer_ = desktop_->platform().viewControllers.makeMailComposer();
    composer_->setToRecipients({recipient});
    composer_->setSubject(subject);
    composer_->setMessageBody(body, false);
    composer_->setMailComposeDelegate(delegate_);
    composer_->addAttachment({"Zm9v", "Text/XML", "Receipt-Data.txt"});
    screen_->presentViewController(composer_, true, nullptr);
  }

  // The same, for a composer that the user is to work in.
  void open(const std::string& recipient = "support@example.com",
            const std::string& subject = "Help", const std::string& body = "Reason:\n\nApp: x\n") {
    present(recipient, subject, body);
    ASSERT_TRUE(waitUntil([&] {
      return windowOf(*composer_).isActiveWindow() && QApplication::focusWidget() != nullptr;
    }));
  }

  bool isOpen() const { return isOnScreen(*composer_); }
  QTextEdit& notice() { return find<QTextEdit>(*composer_, "notice"); }

  // What the notice says, as a person reads it; "" where there is none.
  std::string noticeText() {
    if (!notice().isVisible()) return "";
    return notice().toPlainText().toStdString();
  }

  bool waitForNotice(const std::string& start) {
    return waitUntil([&] { return noticeText().starts_with(start); });
  }

  std::string text(const char* field) {
    return find<QLineEdit>(*composer_, field).text().toStdString();
  }
  std::string body() {
    return find<QPlainTextEdit>(*composer_, "body").toPlainText().toStdString();
  }
  std::vector<std::string> drafts() { return folder_.list("data/drafts"); }
  std::string onlyDraft() {
    const std::vector<std::string> names = drafts();
    EXPECT_EQ(names.size(), 1u);
    return names.empty() ? "" : readFile(folder_.path("data/drafts/" + names.front()));
  }

  // Notes how the user left, and takes the composer away.
  struct Delegate final : MailComposeDelegate {
    std::vector<MailComposeResult> results;
    void mailComposeController(MailComposer& controller, MailComposeResult result,
                               const std::string&) override {
      results.push_back(result);
      controller.dismissViewController(true, nullptr);
    }
  };

  TestFolder folder_;
  QWidget host_;
  DesktopSettings settings_;
  std::optional<DesktopPlatform> desktop_;
  std::shared_ptr<Delegate> delegate_ = std::make_shared<Delegate>();
  std::shared_ptr<ViewController> screen_;
  std::shared_ptr<MailComposer> composer_;
};

}  // namespace qv_commons::desktop
