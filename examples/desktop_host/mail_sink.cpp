#include "examples/desktop_host/mail_sink.h"

#include <QFile>
#include <QStandardPaths>

namespace host {

MailSink::MailSink(const QString& messageFile) : program_(QStandardPaths::findExecutable("msmtp")) {
  if (program_.isEmpty()) return;
  // Debian's own interpreter, which has Debian's aiosmtpd whatever else PATH leads to.
  server_.setProgram(QFile::exists("/usr/bin/python3") ? "/usr/bin/python3" : "python3");
  server_.setArguments({QV_MAIL_SINK_SCRIPT, messageFile});
  server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  server_.start();
  if (!server_.waitForReadyRead(10000)) return;
  const int port = server_.readLine().trimmed().toInt();

  QFile configuration(directory_.filePath("msmtprc"));
  if (!configuration.open(QIODevice::WriteOnly)) return;
  configuration.write("account default\nhost 127.0.0.1\nfrom notes@example.com\nport " +
                      QByteArray::number(port) + "\n");
  configuration.close();
  configuration.setPermissions(QFile::ReadOwner | QFile::WriteOwner);  // msmtp insists
  port_ = port;
}

MailSink::~MailSink() {
  server_.closeWriteChannel();
  server_.waitForFinished();
}

std::vector<std::string> MailSink::arguments() const {
  return {"-C", directory_.filePath("msmtprc").toStdString()};
}

}  // namespace host
