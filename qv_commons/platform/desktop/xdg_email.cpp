#include "qv_commons/platform/desktop/xdg_email.h"

#include <QStandardPaths>
#include <utility>
#include <vector>

#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

QStringList argumentsFor(const HandedMail& mail) {
  QStringList arguments{"--utf8", "--subject", mail.subject, "--body", mail.body};
  for (const QString& file : mail.files) arguments << "--attach" << file;
  return arguments + mail.addresses;
}

// The exit codes of its manual.
Sentence describeXdgEmailExit(int exitCode) {
  switch (exitCode) {
    case 3:
      return Sentence("This computer has no mail program that xdg-email knows.");
    case 4:
      return Sentence("xdg-email could not open a mail program.");
    default:
      return Sentence("xdg-email failed with code %1.", {std::to_string(exitCode)});
  }
}

// A QProcess that is destroyed ends its program.
void leaveRunning(std::unique_ptr<QProcess> process) {
  static auto* const running = new std::vector<std::unique_ptr<QProcess>>;  // to the very end
  process->disconnect();
  running->push_back(std::move(process));
}

}  // namespace

QString findXdgEmail() {
  return QStandardPaths::findExecutable("xdg-email");
}

XdgEmail::XdgEmail(const HandedMail& mail, Done done, std::chrono::milliseconds longest)
    : done_(std::move(done)) {
  QObject::connect(
      process_.get(), &QProcess::finished, &timer_,
      [this](int exitCode, QProcess::ExitStatus status) { onFinished(exitCode, status); });
  QObject::connect(
      process_.get(), &QProcess::errorOccurred, &timer_,
      [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
          finish(Outcome::failed, Sentence("xdg-email can't be started."));
        }
      },
      Qt::QueuedConnection);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { finish(Outcome::opened); });
  timer_.setSingleShot(true);
  timer_.start(longest);
  process_->setStandardInputFile(QProcess::nullDevice());
  process_->setStandardOutputFile(QProcess::nullDevice());
  process_->setStandardErrorFile(QProcess::nullDevice());
  process_->start(findXdgEmail(), argumentsFor(mail));
}

XdgEmail::~XdgEmail() {
  if (process_->state() != QProcess::NotRunning) leaveRunning(std::move(process_));
}

void XdgEmail::onFinished(int exitCode, QProcess::ExitStatus status) {
  if (status == QProcess::CrashExit) {
    return finish(Outcome::failed, Sentence("xdg-email crashed."));
  }
  if (exitCode != 0) return finish(Outcome::failed, describeXdgEmailExit(exitCode));
  finish(Outcome::opened);
}

void XdgEmail::finish(Outcome outcome, const Failure& failure) {
  timer_.stop();
  const Done done = std::exchange(done_, nullptr);
  if (done) done(outcome, failure);
}

}  // namespace qv_commons::desktop
