// A mail server of the tour's own on loopback, and how msmtp reaches it.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <string>
#include <vector>

namespace host {

class MailSink final {
 public:
  // Keeps each message that comes in as `messageFile`.
  explicit MailSink(const QString& messageFile);
  ~MailSink();

  // False where python3, aiosmtpd or msmtp is missing.
  bool isUp() const { return port_ != 0; }

  // For the adapter's settings: msmtp and its arguments, in the place of the system's sendmail.
  std::string program() const { return program_.toStdString(); }
  std::vector<std::string> arguments() const;

 private:
  QString program_;
  QTemporaryDir directory_;
  QProcess server_;
  int port_ = 0;
};

}  // namespace host
