#include "qv_commons/platform/desktop/desktop_composer.h"

#include <QDateTime>
#include <QSysInfo>
#include <QUuid>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>
#include <utility>

#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

std::string hostName() {
  const std::string name = toUtf8(QSysInfo::machineHostName());
  return name.empty() ? "localhost" : name;
}

std::string defaultSender() {
  const passwd* user = ::getpwuid(::getuid());
  return std::string(user == nullptr ? "user" : user->pw_name) + "@" + hostName();
}

std::string joined(const std::vector<std::string>& texts) {
  std::string result;
  for (const std::string& text : texts) result.append(result.empty() ? "" : ", ").append(text);
  return result;
}

}  // namespace

DesktopComposer::DesktopComposer(SharedContext context)
    : DesktopNode(std::move(context)),
      window_(
          {.send = [this] { send(); }, .save = [this] { save(); }, .cancel = [this] { cancel(); }}),
      identity_(toUtf8(QUuid::createUuid().toString(QUuid::WithoutBraces))) {
  attachWindow(window_);
}

void DesktopComposer::dress(UserInterfaceStyle style) {
  window_.setStyleSheet(styleSheet(themeFor(style), textScale()));
}

void DesktopComposer::userLeaves() {
  if (isModalInPresentation() || isSending()) return;
  if (!window_.isChanged()) return cancel();
  window_.showNotice("Your message is still here. Save it as a draft, or cancel to discard it.",
                     ComposerWindow::Tone::news);
}

void DesktopComposer::send() {
  if (!keepDraft(MailPurpose::send)) return;
  const DesktopSettings& settings = context().settings;
  const QString program = findMailProgram(settings.sendmailProgram);
  if (program.isEmpty()) return onDelivered("This computer has no mail program.");
  window_.setPhase(ComposerWindow::Phase::sending);
  window_.showNotice("Sending…", ComposerWindow::Tone::news);
  QStringList arguments;
  for (const std::string& argument : settings.sendmailArguments) {
    arguments.append(fromUtf8(argument));
  }
  sender_ = std::make_unique<MailSender>(
      program, arguments + QStringList{"-t", "-i"}, fromUtf8(draftPath()), settings.sendTimeout,
      [this](const std::optional<std::string>& failure) { onDelivered(failure); });
}

void DesktopComposer::save() {
  if (keepDraft(MailPurpose::keep)) leave(MailComposeResult::saved);
}

void DesktopComposer::cancel() {
  if (!isSending()) return leave(MailComposeResult::cancelled);
  sender_->stop("Sending was stopped. The message may have been sent all the same.");
}

bool DesktopComposer::keepDraft(MailPurpose purpose) {
  const std::string& sender = context().settings.senderAddress;
  const BuiltMessage built = buildMailMessage({.sender = sender.empty() ? defaultSender() : sender,
                                               .recipients = window_.recipients(),
                                               .subject = window_.subject(),
                                               .body = window_.body(),
                                               .isHTML = isHTML_,
                                               .attachments = attachments_,
                                               .date = QDateTime::currentSecsSinceEpoch(),
                                               .messageId = identity_ + "@" + hostName()},
                                              purpose);
  std::string error = built.error;
  if (error.empty()) {
    error = writeDraft(draftDirectory(), identity_ + ".eml", built.bytes);
    if (!error.empty()) error = draftPath() + " can't be written: " + error + ".";
  }
  if (error.empty()) return true;
  window_.showNotice(fromUtf8(error), ComposerWindow::Tone::error);
  window_.focusField(built.field);
  return false;
}

std::string DesktopComposer::draftDirectory() const {
  return context().dataDirectory() + "/drafts";
}

std::string DesktopComposer::draftPath() const {
  return draftDirectory() + "/" + identity_ + ".eml";
}

void DesktopComposer::onDelivered(const std::optional<std::string>& failure) {
  if (failure) {
    window_.setPhase(ComposerWindow::Phase::editing);
    window_.showNotice(
        fromUtf8("Not sent. " + *failure + "\nA copy is kept as " + draftPath() + "."),
        ComposerWindow::Tone::error);
    return;
  }
  std::error_code ignored;
  std::filesystem::remove(draftPath(), ignored);
  leave(MailComposeResult::sent);
}

void DesktopComposer::leave(MailComposeResult result) {
  window_.setPhase(ComposerWindow::Phase::left);
  if (const std::shared_ptr<MailComposeDelegate> told = delegate_.lock()) {
    told->mailComposeController(composer_, result, "");
  } else {
    composer_.dismissViewController(true, nullptr);
  }
}

void DesktopComposer::Composer::setToRecipients(std::vector<std::string> recipients) {
  owner_.window_.setRecipients(joined(recipients));
}

void DesktopComposer::Composer::setSubject(std::string subject) {
  owner_.window_.setSubject(subject);
}

void DesktopComposer::Composer::setMailComposeDelegate(
    std::weak_ptr<MailComposeDelegate> delegate) {
  owner_.delegate_ = std::move(delegate);
}

void DesktopComposer::Composer::setMessageBody(std::string body, bool isHTML) {
  owner_.window_.setBody(std::move(body));
  owner_.isHTML_ = isHTML;
}

void DesktopComposer::Composer::addAttachment(MailAttachment attachment) {
  owner_.window_.addAttachment(attachment);
  owner_.attachments_.push_back(std::move(attachment));
}

}  // namespace qv_commons::desktop
