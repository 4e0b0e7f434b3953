#include "qv_commons/platform/desktop/desktop_composer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSysInfo>
#include <QUuid>
#include <algorithm>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>
#include <utility>

#include "qv_commons/platform/desktop/desktop_alert.h"
#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/mail_addresses.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

using Phase = ComposerWindow::Phase;
using Severity = ComposerWindow::Severity;

std::string hostName() {
  const std::string name = toUtf8(QSysInfo::machineHostName());
  return isAddress("user@" + name) ? name : "localhost";
}

std::string defaultSender() {
  const passwd* user = ::getpwuid(::getuid());
  return user == nullptr ? "" : std::string(user->pw_name) + "@" + hostName();
}

std::string joined(const std::vector<std::string>& texts) {
  std::string result;
  for (const std::string& text : texts) result.append(result.empty() ? "" : ", ").append(text);
  return result;
}

}  // namespace

DesktopComposer::DesktopComposer(const SharedContext& context)
    : NativeOf(context,
               std::make_shared<ComposerWindow>(
                   ComposerWindow::Callbacks{.send = [this] { later([this] { send(); }); },
                                             .save = [this] { later([this] { save(); }); },
                                             .cancel = [this] { later([this] { cancel(); }); },
                                             .openDraft =
                                                 [this](const std::string& name) {
                                                   later([this, name] { openDraft(name); });
                                                 },
                                             .hidden = [this] { keepWhatWasTyped(); }},
                   context->words),
               Sheet::Form::panel),
      window_(static_cast<ComposerWindow&>(content())),
      identity_(toUtf8(QUuid::createUuid().toString(QUuid::WithoutBraces))) {
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &progressTimer_,
                   [this] { finish(); });
  QObject::connect(&progressTimer_, &QTimer::timeout, &progressTimer_, [this] { showProgress(); });
  listDrafts();
}

DesktopComposer::~DesktopComposer() {
  finish();
  window_.forgetCallbacks();  // the window may live a little longer
}

void DesktopComposer::dress(UserInterfaceStyle style) {
  const Theme theme = themeFor(style);
  window_.setStyleSheet(styleSheet(theme, textScale()));
  setGround(theme.background);
}

void DesktopComposer::userLeaves() {
  if (!isModalInPresentation() && !isBusy()) cancel();
}

void DesktopComposer::show(bool animated) {
  isOver_ = false;
  release();
  SheetController::show(animated);
  if (goesToDesktop()) handOver();
}

void DesktopComposer::hide(bool animated) {
  giveUpDelivery();
  keepWhatWasTyped();
  if (!waiting_) preparation_.stop();
  isOver_ = true;
  SheetController::hide(animated);
  if (isBusy() || preparation_.isRunning()) {
    context().unfinished.push_back(std::shared_ptr<Unfinished>(retained(), this));
  }
}

// The composer may be destroyed by this, but for what is running at this moment.
void DesktopComposer::release() {
  std::vector<std::shared_ptr<Unfinished>>& list = context().unfinished;
  const auto self =
      std::find_if(list.begin(), list.end(), [this](auto& other) { return other.get() == this; });
  if (self == list.end()) return;
  afterTransition([kept = *self] {});
  list.erase(self);
}

bool DesktopComposer::isBusy() const {
  return work_.isRunning() || waiting_ || handOver_ || (sender_ != nullptr && sender_->isRunning());
}

void DesktopComposer::prepare(const std::function<void()>& work,
                              const std::function<void()>& done) {
  if (preparation_.isRunning()) return MailComposer::prepare(work, done);
  attach_ = done;
  window_.showAttaching(true);
  preparation_.start([work](const std::atomic<bool>&) { work(); }, [this] { onPrepared(); });
}

void DesktopComposer::onPrepared() {
  window_.showAttaching(false);
  const std::function<void()> attach = std::exchange(attach_, nullptr);
  if (!preparation_.isStopped()) attach();
  if (const std::function<void()> waiting = std::exchange(waiting_, nullptr)) return waiting();
  if (isOver_) release();
}

void DesktopComposer::whenWhole(const Sentence& notice, std::function<void()> action) {
  window_.setPhase(Phase::sending);
  window_.showNotice(notice, Severity::info);
  if (!preparation_.isRunning()) return action();
  waiting_ = std::move(action);
}

void DesktopComposer::write(MailOutput::Use use, std::function<void()> done) {
  const bool isKept = use == MailOutput::Use::keep;
  const Sentence notice = isKept ? Sentence("Saving…") : Sentence("Sending…");
  whenWhole(notice, [this, use, done = std::move(done)] { startWriting(use, done); });
}

void DesktopComposer::startWriting(MailOutput::Use use, std::function<void()> done) {
  output_ =
      std::make_shared<MailOutput>(message(), context().draftDirectory(), identity_ + kDraftEnding);
  progressTimer_.start(kProgressMilliseconds);
  work_.start([output = output_,
               use](const std::atomic<bool>& isStopped) { output->write(use, isStopped); },
              [this, done = std::move(done)] {
                hideProgress();
                isOnDisk_ = !output_->noDraft();
                isOver_ ? onWrittenUnseen() : done();
              });
}

void DesktopComposer::showProgress() {
  const double done = handOver_ ? handOver_->progress() : output_->progress();
  done < 1 ? window_.showProgress(done) : window_.hideProgress();
}

void DesktopComposer::hideProgress() {
  progressTimer_.stop();
  window_.hideProgress();
}

void DesktopComposer::save() {
  write(MailOutput::Use::keep, [this] {
    if (output_->wasStopped()) return edit(Sentence("Not saved. Saving was stopped."));
    if (output_->failure()) return editUnsaved();
    isSaved_ = true;
    window_.setPhase(Phase::saved);
    window_.showNotice(Sentence("Saved to %1", {draftPath()}), Severity::info);
  });
}

// The window is the user's again.
void DesktopComposer::unlock() {
  isOnDisk_ = false;
  window_.setPhase(Phase::editing);
  window_.hideNotice();
}

void DesktopComposer::edit(const Sentence& notice) {
  unlock();
  window_.showNotice(notice, Severity::error);
}

void DesktopComposer::editUnsaved() {
  edit(Sentence("Not saved. %1", {say(*output_->failure())}));
}

// In the user's language, as a part of another sentence.
std::string DesktopComposer::say(const Sentence& sentence) const {
  return toUtf8(context().words(sentence));
}

void DesktopComposer::cancel() {
  if (std::exchange(waiting_, nullptr)) {
    return edit(Sentence("Stopped. Your message is still here."));
  }
  if (work_.isRunning()) return work_.stop();
  if (handOver_) {
    return onHandedOver(MailHandOver::Outcome::failed,
                        Sentence("It was stopped. Your mail program may open all the same."));
  }
  if (isBusy()) {
    return sender_->stop(
        Sentence("Sending was stopped. The message may have been sent all the same."));
  }
  if (isSaved_) return leave(MailComposeResult::saved);
  if (window_.isChanged()) return askBeforeLeaving();
  giveUp();
}

void DesktopComposer::askBeforeLeaving() {
  const auto question = std::make_shared<DesktopAlert>(
      sharedContext(), say(Sentence("Discard this message?")),
      say(Sentence("What you have written is lost unless you save it.")));
  question->addAction(say(Sentence("Save draft")), AlertActionStyle::standard, [this] { save(); });
  question->addAction(say(Sentence("Discard")), AlertActionStyle::destructive,
                      [this] { giveUp(); });
  question->addAction(say(Sentence("Keep writing")), AlertActionStyle::cancel, nullptr);
  present(question, true, nullptr);
}

// The copy of a failed attempt is the user's only if they asked for it.
void DesktopComposer::giveUp() {
  if (output_ == nullptr || isDraft_) return leave(MailComposeResult::cancelled);
  removeCopyAndLeave(MailComposeResult::cancelled);
}

void DesktopComposer::removeCopyAndLeave(MailComposeResult result) {
  window_.setPhase(Phase::left);
  work_.start(
      [path = draftPath()](const std::atomic<bool>&) {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
      },
      [this, result] { isOver_ ? release() : leave(result); });
}

MailMessage DesktopComposer::envelope() const {
  const std::string& sender = context().settings.senderAddress;
  return {.sender = sender.empty() ? defaultSender() : sender,
          .recipients = window_.recipients(),
          .subject = window_.subject(),
          .isHTML = isHTML_,
          .attachments = attachments_,
          .date = QDateTime::currentSecsSinceEpoch(),
          .messageId = identity_ + "@" + hostName()};
}

MailMessage DesktopComposer::message() const {
  MailMessage message = envelope();
  message.body = window_.body();
  return message;
}

std::string DesktopComposer::draftPath() const {
  return context().draftDirectory() + "/" + identity_ + kDraftEnding;
}

void DesktopComposer::leave(MailComposeResult result) {
  isOver_ = true;
  window_.setPhase(Phase::left);
  if (const std::shared_ptr<MailComposeDelegate> told = delegate_.lock()) {
    told->mailComposeController(*this, result, "");
  } else {
    dismiss(true, nullptr);
  }
}

void DesktopComposer::setToRecipients(std::vector<std::string> recipients) {
  window_.setRecipients(joined(recipients));
}

void DesktopComposer::setSubject(std::string subject) {
  window_.setSubject(subject);
}

void DesktopComposer::setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) {
  delegate_ = std::move(delegate);
}

void DesktopComposer::setMessageBody(std::string body, bool isHTML) {
  window_.setBody(std::move(body));
  isHTML_ = isHTML;
}

void DesktopComposer::addAttachment(MailAttachment attachment) {
  window_.addAttachment(attachment);
  attachments_.push_back(std::make_shared<const MailAttachment>(std::move(attachment)));
}

}  // namespace qv_commons::desktop
