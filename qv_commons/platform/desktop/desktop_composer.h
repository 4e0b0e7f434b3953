// A mail composer: what becomes of the message in its window.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/composer_window.h"
#include "qv_commons/platform/desktop/desktop_node.h"
#include "qv_commons/platform/desktop/mail_sender.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::desktop {

class DesktopComposer final : public DesktopNode {
 public:
  explicit DesktopComposer(SharedContext context);

  MailComposer& controller() override { return composer_; }

 protected:
  void dress(UserInterfaceStyle style) override;

  // Leaves without a question where nothing was typed; otherwise says how to, so that no Escape
  // takes a text away.
  void userLeaves() override;

 private:
  class Composer final : public MailComposer {
   public:
    explicit Composer(DesktopComposer& owner) : MailComposer(owner), owner_(owner) {}
    void setToRecipients(std::vector<std::string> recipients) override;
    void setSubject(std::string subject) override;
    void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) override;
    void setMessageBody(std::string body, bool isHTML) override;
    void addAttachment(MailAttachment attachment) override;

   private:
    DesktopComposer& owner_;
  };

  void send();
  void save();
  void cancel();
  bool isSending() const { return sender_ != nullptr && sender_->isRunning(); }

  // Writes what the window holds to the draft file. False, and the window says why, where that is
  // not possible.
  bool keepDraft(MailPurpose purpose);
  std::string draftDirectory() const;
  std::string draftPath() const;
  void onDelivered(const std::optional<std::string>& failure);
  void leave(MailComposeResult result);

  Composer composer_{*this};
  ComposerWindow window_;
  std::string identity_;  // names the message and its draft
  bool isHTML_ = false;
  std::vector<MailAttachment> attachments_;
  std::weak_ptr<MailComposeDelegate> delegate_;
  std::unique_ptr<MailSender> sender_;
};

}  // namespace qv_commons::desktop
