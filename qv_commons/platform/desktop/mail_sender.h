// Hands a message to the system's mail program.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

// The mail program at `program`, or where that is empty the sendmail in PATH, /usr/sbin or
// /usr/lib; empty where there is no such program.
QString findMailProgram(const std::string& program);

// One call of the mail program. It runs beside the caller, who needs an event loop. Destroying this
// ends the program.
class MailSender {
 public:
  // Called once, from the event loop: why the message was not sent, or nothing where it was. Must
  // not destroy the sender.
  using Done = std::function<void(const Failure& failure)>;

  // Runs `program` with `arguments` and the file on its standard input. A program that takes longer
  // than `timeout` is ended and has failed.
  MailSender(const QString& program, const QStringList& arguments, const QString& messageFile,
             std::chrono::milliseconds timeout, Done done);
  ~MailSender();
  MailSender(const MailSender&) = delete;
  MailSender& operator=(const MailSender&) = delete;

  // Until `done` is called.
  bool isRunning() const { return done_ != nullptr; }

  // Ends the program; the message has then failed for `reason`.
  void stop(Sentence reason);

 private:
  void onFinished(int exitCode, QProcess::ExitStatus status);
  void finish(Failure failure);
  void killAll();
  void keepWhatIsSaid();

  Done done_;
  Failure stopped_;
  QByteArray said_;  // the end of what the program has said
  QProcess process_;
  QTimer timer_;
};

}  // namespace qv_commons::desktop
