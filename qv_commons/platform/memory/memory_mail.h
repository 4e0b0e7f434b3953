// The memory adapter's mail composer and alert: what was set can be read, and a test plays the
// user.
//
//     qv_commons::memory::MemoryPlatform platform;
//     platform.viewControllers().mailAvailable = false;  // the next request shows an alert instead
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/mail_composer.h"
#include "qv_commons/platform/memory/memory_controller.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryMailComposer final : public NativeOf<MailComposer, MemoryController> {
 public:
  // `outcome`, if given, is how the user leaves it as soon as it is on the screen.
  MemoryMailComposer(Record& record, Transitions& transitions, std::string name,
                     std::optional<MailComposeResult> outcome)
      : NativeOf(record, transitions, std::move(name)), outcome_(outcome) {}

  // What has been set so far.
  struct Message {
    std::vector<std::string> toRecipients;
    std::string subject;
    std::string body;
    bool isHTML = false;
    std::vector<MailAttachment> attachments;
  };
  const Message& message() const { return message_; }

  // The user leaves the composer: its delegate is told, if it still lives. May be called again.
  void finish(MailComposeResult result, const std::string& error = "");

  void setToRecipients(std::vector<std::string> recipients) override;
  void setSubject(std::string subject) override;
  void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) override;
  void setMessageBody(std::string body, bool isHTML) override;
  void addAttachment(MailAttachment attachment) override;

 private:
  void show(bool animated) override;

  std::optional<MailComposeResult> outcome_;
  Message message_;
  std::weak_ptr<MailComposeDelegate> delegate_;
};

class QV_COMMONS_EXPORT MemoryAlert final : public NativeOf<AlertController, MemoryController> {
 public:
  struct Action {
    std::string title;
    AlertActionStyle style;
    Completion handler;
  };

  struct Texts {
    std::string title;
    std::string message;
    AlertStyle preferredStyle;
  };

  MemoryAlert(Record& record, Transitions& transitions, std::string name, Texts texts)
      : NativeOf(record, transitions, std::move(name)), texts_(std::move(texts)) {}

  const Texts& texts() const { return texts_; }
  const std::vector<Action>& actions() const { return actions_; }

  // The user taps the button of that index: the alert goes, then the button's handler runs.
  void tap(std::size_t index);

  void addAction(std::string title, AlertActionStyle style, Completion handler) override;

 private:
  Texts texts_;
  std::vector<Action> actions_;
};

}  // namespace qv_commons::memory
