// The memory adapter's mail composer and alert: what was set can be read, and a test plays the
// user.
//
//     qv_commons::memory::MemoryPlatform platform;
//     platform.mail().available = false;  // the next request shows an alert instead
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/mail_composer.h"
#include "qv_commons/platform/memory/memory_node.h"

namespace qv_commons::memory {

class MemoryMailComposer final : public MemoryNode {
 public:
  // `outcome`, if given, is how the user leaves it as soon as it is on the screen.
  MemoryMailComposer(Record& record, Transitions& transitions, std::string name,
                     std::optional<MailComposeResult> outcome)
      : MemoryNode(record, transitions, std::move(name)), composer_(*this), outcome_(outcome) {}

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

  MailComposer& controller() override { return composer_; }

 protected:
  void show(bool animated) override;

 private:
  class Composer final : public MailComposer {
   public:
    explicit Composer(MemoryMailComposer& owner) : MailComposer(owner), owner_(owner) {}
    void setToRecipients(std::vector<std::string> recipients) override;
    void setSubject(std::string subject) override;
    void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) override;
    void setMessageBody(std::string body, bool isHTML) override;
    void addAttachment(MailAttachment attachment) override;

   private:
    MemoryMailComposer& owner_;
  };

  Composer composer_;
  std::optional<MailComposeResult> outcome_;
  Message message_;
  std::weak_ptr<MailComposeDelegate> delegate_;
};

class MemoryMail final : public MailComposers {
 public:
  MemoryMail(Record& record, Transitions& transitions)
      : record_(record), transitions_(transitions) {}

  bool available = true;

  // Where set, each composer is finished with this as soon as it is on the screen.
  std::optional<MailComposeResult> outcome;

  // Every composer made so far, oldest first; in the record they are composer1, composer2 and so
  // on.
  const std::vector<std::shared_ptr<MemoryMailComposer>>& composers() const { return composers_; }

  bool canSendMail() const override;
  std::shared_ptr<MailComposer> makeMailComposer() override;

 private:
  Record& record_;
  Transitions& transitions_;
  std::vector<std::shared_ptr<MemoryMailComposer>> composers_;
};

class MemoryAlert final : public MemoryNode {
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
      : MemoryNode(record, transitions, std::move(name), ViewControllerKind::alert),
        alert_(*this),
        texts_(std::move(texts)) {}

  const Texts& texts() const { return texts_; }
  const std::vector<Action>& actions() const { return actions_; }

  // The user taps the button of that index: the alert goes, then the button's handler runs.
  void tap(std::size_t index);

  AlertController& controller() override { return alert_; }

 private:
  class Alert final : public AlertController {
   public:
    explicit Alert(MemoryAlert& owner) : AlertController(owner), owner_(owner) {}
    void addAction(std::string title, AlertActionStyle style, Completion handler) override;

   private:
    MemoryAlert& owner_;
  };

  Alert alert_;
  Texts texts_;
  std::vector<Action> actions_;
};

class MemoryAlerts final : public Alerts {
 public:
  MemoryAlerts(Record& record, Transitions& transitions)
      : record_(record), transitions_(transitions) {}

  // Every alert made so far, oldest first; in the record they are alert1, alert2 and so on.
  const std::vector<std::shared_ptr<MemoryAlert>>& alerts() const { return alerts_; }

  std::shared_ptr<AlertController> makeAlertController(std::string title, std::string message,
                                                       AlertStyle preferredStyle) override;

 private:
  Record& record_;
  Transitions& transitions_;
  std::vector<std::shared_ptr<MemoryAlert>> alerts_;
};

}  // namespace qv_commons::memory
