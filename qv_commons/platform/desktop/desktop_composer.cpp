#include "qv_commons/platform/desktop/desktop_composer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QSysInfo>
#include <QUuid>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>
#include <utility>

#include "qv_commons/platform/desktop/desktop_alert.h"
#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/mail_addresses.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

using Phase = ComposerWindow::Phase;
using Severity = ComposerWindow::Severity;

constexpr int kProgressMilliseconds = 100;
constexpr const char* kEnding = ".eml";

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

DesktopComposer::DesktopComposer(SharedContext context)
    : NativeOf(
          std::move(context),
          std::make_shared<ComposerWindow>(ComposerWindow::Callbacks{
              .send = [this] { later([this] { send(); }); },
              .save = [this] { later([this] { save(); }); },
              .cancel = [this] { later([this] { cancel(); }); },
              .openDraft =
                  [this](const std::string& name) { later([this, name] { openDraft(name); }); },
              .hidden = [this] { keepWhatWasTyped(); }}),
          Sheet::Form::panel),
      window_(static_cast<ComposerWindow&>(content())),
      identity_(toUtf8(QUuid::createUuid().toString(QUuid::WithoutBraces))) {
  QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &progressTimer_,
                   [this] { keepWhatWasTyped(); });
  QObject::connect(&progressTimer_, &QTimer::timeout, &progressTimer_, [this] {
    if (work_.isRunning()) window_.showProgress(output_->progress());
  });
  listDrafts();
}

DesktopComposer::~DesktopComposer() {
  work_.finish();
  keepWhatWasTyped();
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
  SheetController::show(animated);
}

void DesktopComposer::hide(bool animated) {
  keepWhatWasTyped();
  isOver_ = true;
  SheetController::hide(animated);
}

// Once for all when the composer goes; as often as its window is hidden before.
void DesktopComposer::keepWhatWasTyped() {
  if (isBusy() || isOver_ || isSaved_ || !window_.isChanged()) return;
  MailOutput output(message(), context().draftDirectory(), identity_ + kEnding);
  output.write(MailOutput::Use::keep, false);
  if (output.failure()) context().reportError(*output.failure());
}

void DesktopComposer::send() {
  if (const std::optional<MailProblem> problem = findProblem(message())) {
    window_.showNotice(fromUtf8(problem->sentence), Severity::error);
    return window_.focusField(problem->field);
  }
  write("Sending…", MailOutput::Use::send, [this] { deliver(); });
}

void DesktopComposer::save() {
  write("Saving…", MailOutput::Use::keep, [this] {
    if (output_->wasStopped()) return edit("Not saved. Saving was stopped.");
    if (output_->failure()) return edit("Not saved. " + *output_->failure());
    isSaved_ = true;
    window_.setPhase(Phase::saved);
    window_.showNotice(fromUtf8("Saved to " + draftPath()), Severity::info);
  });
}

void DesktopComposer::write(const QString& notice, MailOutput::Use use,
                            std::function<void()> done) {
  window_.setPhase(Phase::sending);
  window_.showNotice(notice, Severity::info);
  output_ =
      std::make_shared<MailOutput>(message(), context().draftDirectory(), identity_ + kEnding);
  progressTimer_.start(kProgressMilliseconds);
  work_.start([output = output_,
               use](const std::atomic<bool>& isStopped) { output->write(use, isStopped); },
              [this, done = std::move(done)] {
                progressTimer_.stop();
                window_.hideProgress();
                done();
              });
}

void DesktopComposer::deliver() {
  const DesktopSettings& settings = context().settings;
  if (output_->wasStopped()) return onDelivered("Sending was stopped.");
  if (output_->failure()) return onDelivered(output_->failure());
  const QString program = findMailProgram(settings.sendmailProgram);
  if (program.isEmpty()) return onDelivered("This computer has no mail program.");
  if (output_->noDraft()) {
    window_.showNotice(fromUtf8("Sending… No copy is kept: " + *output_->noDraft()),
                       Severity::info);
  }
  QStringList arguments;
  for (const std::string& argument : settings.sendmailArguments) {
    arguments.append(fromUtf8(argument));
  }
  sender_ = std::make_unique<MailSender>(program, arguments + QStringList{"-t", "-i"},
                                         fromUtf8(output_->file()), settings.sendTimeout,
                                         [this](const Failure& failure) { onDelivered(failure); });
}

void DesktopComposer::onDelivered(const Failure& failure) {
  if (!failure) return removeCopyAndLeave(MailComposeResult::sent);
  const bool isKept = !output_->wasStopped() && !output_->noDraft();
  edit("Not sent. " + *failure +
       (isKept                                         ? "\nA copy is kept as " + draftPath() + "."
        : output_->noDraft() && !output_->wasStopped() ? "\nNo copy is kept: " + *output_->noDraft()
                                                       : ""));
}

// The window is the user's again.
void DesktopComposer::edit(const std::string& notice) {
  window_.setPhase(Phase::editing);
  window_.showNotice(fromUtf8(notice), Severity::error);
}

void DesktopComposer::cancel() {
  if (work_.isRunning()) return work_.stop();
  if (isBusy()) {
    return sender_->stop("Sending was stopped. The message may have been sent all the same.");
  }
  if (isSaved_) return leave(MailComposeResult::saved);
  if (window_.isChanged()) return askBeforeLeaving();
  giveUp();
}

void DesktopComposer::askBeforeLeaving() {
  const auto question =
      std::make_shared<DesktopAlert>(sharedContext(), "Discard this message?",
                                     "What you have written is lost unless you save it.");
  question->addAction("Save draft", AlertActionStyle::standard, [this] { save(); });
  question->addAction("Discard", AlertActionStyle::destructive, [this] { giveUp(); });
  question->addAction("Keep writing", AlertActionStyle::cancel, nullptr);
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
      [this, result] { leave(result); });
}

void DesktopComposer::openDraft(const std::string& name) {
  struct Opened {
    Failure notKept;
    Result<MailMessage> draft;
  };
  const auto opened = std::make_shared<Opened>();
  std::shared_ptr<MailOutput> kept;
  if (window_.isChanged()) {
    kept = std::make_shared<MailOutput>(message(), context().draftDirectory(), identity_ + kEnding);
  }
  window_.setPhase(Phase::left);
  work_.start(
      [opened, kept,
       path = context().draftDirectory() + "/" + name](const std::atomic<bool>& isStopped) {
        if (kept) kept->write(MailOutput::Use::keep, isStopped);
        if (kept) opened->notKept = kept->failure();
        if (!opened->notKept) opened->draft = readDraft(path);
      },
      [this, opened, name] {
        if (opened->notKept) return edit("Your message is still here. " + *opened->notKept);
        if (!opened->draft.value) return edit(opened->draft.failure);
        fill(*opened->draft.value, name);
      });
}

void DesktopComposer::fill(const MailMessage& draft, const std::string& name) {
  window_.setRecipients(draft.recipients);
  window_.setSubject(draft.subject);
  window_.setBody(draft.body);
  window_.clearAttachments();
  for (const SharedAttachment& attachment : draft.attachments) window_.addAttachment(*attachment);
  attachments_ = draft.attachments;
  isHTML_ = draft.isHTML;
  identity_ = name.substr(0, name.size() - std::char_traits<char>::length(kEnding));
  isDraft_ = true;
  window_.setPhase(Phase::editing);
  window_.hideNotice();
  listDrafts();
}

void DesktopComposer::listDrafts() {
  const auto drafts = std::make_shared<std::vector<DraftSummary>>();
  if (lister_.isRunning()) return;
  lister_.start([drafts, folder = context().draftDirectory()](
                    const std::atomic<bool>&) { *drafts = desktop::listDrafts(folder); },
                [this, drafts] { window_.showDrafts(*drafts); });
}

MailMessage DesktopComposer::message() const {
  const std::string& sender = context().settings.senderAddress;
  return {.sender = sender.empty() ? defaultSender() : sender,
          .recipients = window_.recipients(),
          .subject = window_.subject(),
          .body = window_.body(),
          .isHTML = isHTML_,
          .attachments = attachments_,
          .date = QDateTime::currentSecsSinceEpoch(),
          .messageId = identity_ + "@" + hostName()};
}

std::string DesktopComposer::draftPath() const {
  return context().draftDirectory() + "/" + identity_ + kEnding;
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
