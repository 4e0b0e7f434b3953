// What leaves the composer: by a mail program of the system's or the desktop's, and as drafts.
#include <algorithm>
#include <utility>

#include "qv_commons/platform/desktop/desktop_composer.h"
#include "qv_commons/platform/desktop/mail_drafts.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

using Phase = ComposerWindow::Phase;
using Severity = ComposerWindow::Severity;

Sentence noMailProgram() {
  return Sentence("This computer has no mail program.");
}

}  // namespace

bool DesktopComposer::goesToDesktop() const {
  const std::vector<MailWay> ways = context().mailWays.present();
  if (ways.empty() || ways.front() == MailWay::sendmail) return false;
  return !hasDesktopFailed_ || !hasSendmail();
}

bool DesktopComposer::hasSendmail() const {
  const std::vector<MailWay> ways = context().mailWays.present();
  return std::find(ways.begin(), ways.end(), MailWay::sendmail) != ways.end();
}

bool DesktopComposer::showProblem() {
  const std::optional<MailProblem> problem = findProblem(envelope());
  if (!problem) return false;
  edit(problem->sentence);
  window_.focusField(problem->field);
  return true;
}

void DesktopComposer::send() {
  if (showProblem()) return;
  if (goesToDesktop()) return handOver();
  write(MailOutput::Use::send, [this] { deliver(); });
}

void DesktopComposer::deliver() {
  const DesktopSettings& settings = context().settings;
  if (output_->wasStopped()) return onDelivered(Sentence("Sending was stopped."));
  if (output_->failure()) return onDelivered(output_->failure());
  const QString program = findMailProgram(settings.sendmailProgram);
  if (program.isEmpty()) return onDelivered(noMailProgram());
  if (output_->noDraft()) {
    window_.showNotice(Sentence("Sending… No copy is kept: %1", {say(*output_->noDraft())}),
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
  if (output_->wasStopped()) return edit(Sentence("Not sent. %1", {say(*failure)}));
  edit(
      output_->noDraft()
          ? Sentence("Not sent. %1\nNo copy is kept: %2", {say(*failure), say(*output_->noDraft())})
          : Sentence("Not sent. %1\nA copy is kept as %2.", {say(*failure), draftPath()}));
}

void DesktopComposer::handOver() {
  if (showProblem()) return;
  whenWhole(Sentence("Opening your mail program…"), [this] {
    if (isOver_) return window_.isChanged() ? keepUnseen() : release();
    std::vector<MailWay> ways = context().mailWays.present();
    ways.erase(std::find(ways.begin(), ways.end(), MailWay::sendmail), ways.end());
    progressTimer_.start(kProgressMilliseconds);
    handOver_ = std::make_unique<HandOverInTurn>(
        std::move(ways), message(), context().handedMailDirectory(), identity_, window(),
        [this](MailHandOver::Outcome outcome, const Failure& failure) {
          later([this, outcome, failure] { onHandedOver(outcome, failure); });
        });
  });
}

void DesktopComposer::onHandedOver(MailHandOver::Outcome outcome, const Failure& failure) {
  if (!handOver_) return;  // stopped meanwhile
  handOver_.reset();
  hideProgress();
  if (outcome == MailHandOver::Outcome::opened) return leave(MailComposeResult::saved);
  if (outcome == MailHandOver::Outcome::refused) {
    if (!window_.isChanged()) return leave(MailComposeResult::cancelled);
    return edit(Sentence("Not handed over. No mail program was chosen."));
  }
  hasDesktopFailed_ = true;
  const std::string reason = say(failure.value_or(noMailProgram()));
  edit(hasSendmail() ? Sentence("Not handed over to your mail program. %1\n"
                                "You can send the message from here.",
                                {reason})
                     : Sentence("Not handed over to your mail program. %1", {reason}));
}

void DesktopComposer::openDraft(const std::string& name) {
  whenWhole(Sentence("Opening…"), [this, name] { startOpening(name); });
}

void DesktopComposer::startOpening(const std::string& name) {
  struct Opened {
    Failure notKept;
    Result<MailMessage> draft;
  };
  const auto opened = std::make_shared<Opened>();
  std::shared_ptr<MailOutput> kept;
  if (window_.isChanged()) {
    kept = std::make_shared<MailOutput>(message(), context().draftDirectory(),
                                        identity_ + kDraftEnding);
  }
  work_.start(
      [opened, kept,
       path = context().draftDirectory() + "/" + name](const std::atomic<bool>& isStopped) {
        if (kept) kept->write(MailOutput::Use::keep, isStopped);
        if (kept) opened->notKept = kept->failure();
        if (!opened->notKept) opened->draft = readDraft(path);
      },
      [this, opened, name] {
        if (isOver_) return opened->notKept ? keepUnseen() : release();
        if (work_.isStopped()) return edit(Sentence("Not opened. Opening was stopped."));
        if (opened->notKept) {
          return edit(Sentence("Your message is still here. %1", {say(*opened->notKept)}));
        }
        if (!opened->draft.value) return edit(*opened->draft.failure);
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
  identity_ = name.substr(0, name.size() - std::char_traits<char>::length(kDraftEnding));
  isDraft_ = true;
  unlock();
  listDrafts();
}

void DesktopComposer::listDrafts() {
  const auto drafts = std::make_shared<std::vector<DraftSummary>>();
  if (lister_.isRunning()) return;
  lister_.start([drafts, folder = context().draftDirectory()](
                    const std::atomic<bool>&) { *drafts = desktop::listDrafts(folder); },
                [this, drafts] { window_.showDrafts(*drafts); });
}

// As often as the window around it is hidden, and once for all when the composer goes.
void DesktopComposer::keepWhatWasTyped() {
  if (isBusy() || isOver_ || isSaved_ || isOnDisk_ || !window_.isChanged()) return;
  write(MailOutput::Use::keep, [this] {
    if (output_->failure()) return editUnsaved();
    unlock();
  });
}

void DesktopComposer::onWrittenUnseen() {
  if (output_->wasStopped() && window_.isChanged()) return keepUnseen();
  if (output_->noDraft()) context().reportError(inEnglish(*output_->noDraft()));
  release();
}

// The user had stopped what was being written when the composer was taken away.
void DesktopComposer::keepUnseen() {
  startWriting(MailOutput::Use::keep, [this] { unlock(); });
}

void DesktopComposer::giveUpDelivery() {
  sender_.reset();
  handOver_.reset();
  hideProgress();
}

void DesktopComposer::finish() {
  giveUpDelivery();
  keepWhatWasTyped();
  isOver_ = true;
  if (waiting_) {
    preparation_.finish();
    onPrepared();
  }
  preparation_.stop();
  preparation_.finish();
  if (!work_.isRunning()) return;
  work_.finish();
  if (output_ == nullptr) return;
  if (output_->wasStopped() && window_.isChanged()) {
    keepUnseen();
    work_.finish();
  }
  if (output_->noDraft()) context().reportError(inEnglish(*output_->noDraft()));
}

}  // namespace qv_commons::desktop
