// A mail composer: what becomes of the message in its window.
#pragma once

#include <QTimer>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/background_work.h"
#include "qv_commons/platform/desktop/composer_window.h"
#include "qv_commons/platform/desktop/mail_output.h"
#include "qv_commons/platform/desktop/mail_sender.h"
#include "qv_commons/platform/desktop/sheet_controller.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::desktop {

class DesktopComposer final : public NativeOf<MailComposer, SheetController> {
 public:
  explicit DesktopComposer(SharedContext context);
  ~DesktopComposer() override;

  void setToRecipients(std::vector<std::string> recipients) override;
  void setSubject(std::string subject) override;
  void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) override;
  void setMessageBody(std::string body, bool isHTML) override;
  void addAttachment(MailAttachment attachment) override;

 protected:
  void dress(UserInterfaceStyle style) override;

  // As if by the Cancel button, unless a message is under way.
  void userLeaves() override;

  // Whoever takes the composer away, what the user has typed stays as a draft.
  void show(bool animated) override;
  void hide(bool animated) override;

 private:
  void send();
  void save();
  void cancel();
  void askBeforeLeaving();
  void giveUp();
  void openDraft(const std::string& name);
  bool isBusy() const { return work_.isRunning() || (sender_ != nullptr && sender_->isRunning()); }

  // Writes what the window holds beside the main thread, then calls `done`. The window says
  // `notice`, how far it is, and can stop it.
  void write(const QString& notice, MailOutput::Use use, std::function<void()> done);
  MailMessage message() const;
  std::string draftPath() const;

  void deliver();
  void onDelivered(const Failure& failure);
  void edit(const std::string& notice);
  void fill(const MailMessage& draft, const std::string& name);
  void listDrafts();
  void keepWhatWasTyped();
  void removeCopyAndLeave(MailComposeResult result);
  void leave(MailComposeResult result);

  ComposerWindow& window_;
  std::string identity_;  // names the message and its draft
  bool isDraft_ = false;  // that the user has kept
  bool isOver_ = false;   // left, or taken away and kept
  bool isSaved_ = false;  // and waits for Done
  bool isHTML_ = false;
  std::vector<SharedAttachment> attachments_;
  std::weak_ptr<MailComposeDelegate> delegate_;
  std::shared_ptr<MailOutput> output_;  // of the last attempt to save or send
  std::unique_ptr<MailSender> sender_;
  QTimer progressTimer_;
  BackgroundWork work_;
  BackgroundWork lister_;
};

}  // namespace qv_commons::desktop
