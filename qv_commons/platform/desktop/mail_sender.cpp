#include "qv_commons/platform/desktop/mail_sender.h"

#include <QStandardPaths>
#include <csignal>
#include <sysexits.h>
#include <unistd.h>
#include <utility>

#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

// The exit codes of sysexits.h, which mail programs keep to.
Sentence describeExit(int exitCode) {
  switch (exitCode) {
    case EX_DATAERR:
    case EX_NOUSER:
      return Sentence("The mail server refused the address or the message.");
    case EX_NOHOST:
    case EX_UNAVAILABLE:
    case EX_TEMPFAIL:
      return Sentence("The mail server can't be reached at the moment. Please try again later.");
    case EX_NOPERM:
      return Sentence("You are not allowed to send mail.");
    case EX_CONFIG:
      return Sentence("Mail is not set up on this computer.");
    default:
      return Sentence("The mail program failed with code %1.", {std::to_string(exitCode)});
  }
}

// What the program said last, shortened to what a person reads.
std::string complaint(const QByteArray& said) {
  constexpr qsizetype kLongest = 300;
  const QString text = QString::fromUtf8(said).simplified();
  return toUtf8(text.size() > kLongest ? "…" + text.right(kLongest) : text);
}

}  // namespace

QString findMailProgram(const std::string& program) {
  if (!program.empty()) return QStandardPaths::findExecutable(fromUtf8(program));
  QString inPath = QStandardPaths::findExecutable("sendmail");
  if (!inPath.isEmpty()) return inPath;
  return QStandardPaths::findExecutable("sendmail", {"/usr/sbin", "/usr/lib"});
}

MailSender::MailSender(const QString& program, const QStringList& arguments,
                       const QString& messageFile, std::chrono::milliseconds timeout, Done done)
    : done_(std::move(done)) {
  QObject::connect(
      &process_, &QProcess::finished, &process_,
      [this](int exitCode, QProcess::ExitStatus status) { onFinished(exitCode, status); });
  QObject::connect(
      &process_, &QProcess::errorOccurred, &process_,
      [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;
        finish(Sentence("The mail program %1 can't be started.", {toUtf8(process_.program())}));
      },
      Qt::QueuedConnection);
  QObject::connect(&process_, &QProcess::readyReadStandardError, &process_,
                   [this] { keepWhatIsSaid(); });
  QObject::connect(&timer_, &QTimer::timeout, &timer_,
                   [this] { stop(Sentence("The mail program took too long and was ended.")); });
  timer_.setSingleShot(true);
  timer_.start(timeout);
  process_.setStandardInputFile(messageFile);
  process_.setStandardOutputFile(QProcess::nullDevice());
  // A group of its own, so that helpers that the program started end with it.
  process_.setChildProcessModifier([] { ::setpgid(0, 0); });
  process_.start(program, arguments);
}

MailSender::~MailSender() {
  process_.disconnect();
  if (process_.state() == QProcess::NotRunning) return;
  killAll();
  process_.waitForFinished();
}

void MailSender::stop(Sentence reason) {
  if (stopped_) return;
  stopped_ = std::move(reason);
  killAll();
}

void MailSender::killAll() {
  const auto group = static_cast<pid_t>(process_.processId());
  if (group > 0 && ::kill(-group, SIGKILL) != 0) process_.kill();  // it has no group yet
}

void MailSender::onFinished(int exitCode, QProcess::ExitStatus status) {
  if (stopped_) return finish(stopped_);
  if (status == QProcess::CrashExit) return finish(Sentence("The mail program crashed."));
  if (exitCode == EX_OK) return finish(std::nullopt);
  keepWhatIsSaid();
  Sentence failure = describeExit(exitCode);
  failure.quoted = complaint(said_);
  finish(std::move(failure));
}

// A program that says more than a person reads must not fill the memory.
void MailSender::keepWhatIsSaid() {
  constexpr qsizetype kKept = 4096;
  said_ = (said_ + process_.readAllStandardError()).right(kKept);
}

void MailSender::finish(Failure failure) {
  timer_.stop();
  const Done done = std::exchange(done_, nullptr);
  if (done) done(failure);
}

}  // namespace qv_commons::desktop
