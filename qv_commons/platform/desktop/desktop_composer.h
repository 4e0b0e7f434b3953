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
#include "qv_commons/platform/desktop/hand_over_in_turn.h"
#include "qv_commons/platform/desktop/mail_output.h"
#include "qv_commons/platform/desktop/mail_sender.h"
#include "qv_commons/platform/desktop/sheet_controller.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::desktop {

class DesktopComposer final : public NativeOf<MailComposer, SheetController>, public Unfinished {
 public:
  explicit DesktopComposer(const SharedContext& context);
  ~DesktopComposer() override;

  void setToRecipients(std::vector<std::string> recipients) override;
  void setSubject(std::string subject) override;
  void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) override;
  void setMessageBody(std::string body, bool isHTML) override;
  void addAttachment(MailAttachment attachment) override;

  // Beside the main thread. What the user does meanwhile waits where it needs the whole message.
  void prepare(const std::function<void()>& work, const std::function<void()>& done) override;

  // What has been typed is on the disk when this returns.
  void finish() override;

 protected:
  void dress(UserInterfaceStyle style) override;

  // As if by the Cancel button, unless a message is under way.
  void userLeaves() override;

  // Hands the message over at once where it goes to the desktop's mail program.
  void show(bool animated) override;

  // Whoever takes the composer away, what the user has typed stays as a draft.
  void hide(bool animated) override;

 private:
  static constexpr int kProgressMilliseconds = 100;
  static constexpr const char* kDraftEnding = ".eml";

  void send();
  void save();
  void cancel();
  void askBeforeLeaving();
  void giveUp();
  bool isBusy() const;

  void onPrepared();

  // Runs `action` once everything is attached. The window says `notice` and can stop it.
  void whenWhole(const Sentence& notice, std::function<void()> action);

  // Writes what the window holds beside the main thread, then calls `done`. The window says what
  // goes on, how far it is, and can stop it.
  void write(MailOutput::Use use, std::function<void()> done);
  void startWriting(MailOutput::Use use, std::function<void()> done);
  void showProgress();
  void hideProgress();
  MailMessage envelope() const;  // without the body
  MailMessage message() const;
  std::string draftPath() const;

  bool goesToDesktop() const;
  bool hasSendmail() const;
  bool showProblem();
  void deliver();
  void onDelivered(const Failure& failure);
  void handOver();
  void onHandedOver(MailHandOver::Outcome outcome, const Failure& failure);
  void giveUpDelivery();
  void unlock();
  void edit(const Sentence& notice);
  void editUnsaved();
  std::string say(const Sentence& sentence) const;

  void openDraft(const std::string& name);
  void startOpening(const std::string& name);
  void fill(const MailMessage& draft, const std::string& name);
  void listDrafts();
  void keepWhatWasTyped();
  void onWrittenUnseen();
  void keepUnseen();
  void release();
  void removeCopyAndLeave(MailComposeResult result);
  void leave(MailComposeResult result);

  ComposerWindow& window_;
  std::string identity_;   // names the message and its draft
  bool isDraft_ = false;   // that the user has kept
  bool isOver_ = false;    // left, or taken away and kept
  bool isSaved_ = false;   // and waits for Done
  bool isOnDisk_ = false;  // as it is in the window, which is locked
  bool hasDesktopFailed_ = false;
  bool isHTML_ = false;
  std::vector<SharedAttachment> attachments_;
  std::weak_ptr<MailComposeDelegate> delegate_;
  std::function<void()> attach_;        // what is being prepared
  std::function<void()> waiting_;       // for that
  std::shared_ptr<MailOutput> output_;  // of the last attempt to save or send
  std::unique_ptr<MailSender> sender_;
  std::unique_ptr<HandOverInTurn> handOver_;
  QTimer progressTimer_;
  BackgroundWork preparation_;
  BackgroundWork work_;
  BackgroundWork lister_;
};

}  // namespace qv_commons::desktop
