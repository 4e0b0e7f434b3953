// Plays the desktop's mail portal on the session bus, as its first argument says: "opens" a mail
// program; "refuses", as the user does; "fails"; "errs" at once; accepts and then "waits" or
// "goes"; is "silent" to every question; or has "no mail". Writes what it was given, a file for
// each, to the folder of its second argument. Prints a line once it is on the bus and stays there.
#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <signal.h>
#include <sys/prctl.h>

namespace {

void say(const char* line) {
  std::puts(line);
  std::fflush(stdout);
}

class Portal final : public QDBusVirtualObject {
 public:
  Portal(QString role, QString folder) : role_(std::move(role)), folder_(std::move(folder)) {}

  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() == "Get") return answerVersion(message, bus);
    if (message.interface() == "org.freedesktop.portal.Request") {
      note("closed", message.path());
      return true;
    }
    if (message.interface() != "org.freedesktop.portal.Email" ||
        message.member() != "ComposeEmail" || message.signature() != "sa{sv}") {
      return false;
    }
    if (role_ == "silent") return true;
    if (role_ == "errs") {
      return bus.send(message.createErrorReply("org.freedesktop.portal.Error.Failed", "no luck"));
    }
    takeMessage(message);
    return answerMessage(message, bus);
  }

 private:
  bool answerVersion(const QDBusMessage& message, const QDBusConnection& bus) {
    if (message.arguments() != QVariantList{"org.freedesktop.portal.Email", "version"}) {
      return false;
    }
    say("asked");
    if (role_ == "silent") return true;
    if (role_ == "no mail") {
      return bus.send(message.createErrorReply("org.freedesktop.DBus.Error.InvalidArgs", "none"));
    }
    return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(3U))));
  }

  void takeMessage(const QDBusMessage& message) {
    note("window", message.arguments()[0].toString());
    QVariantMap options = qdbus_cast<QVariantMap>(message.arguments()[1]);
    token_ = options.take("handle_token").toString();
    const auto files = qdbus_cast<QList<QDBusUnixFileDescriptor>>(options.take("attachment_fds"));
    for (const QDBusUnixFileDescriptor& descriptor : files) {
      const QString link = QString("/proc/self/fd/%1").arg(descriptor.fileDescriptor());
      QFile file(link);
      static_cast<void>(file.open(QIODevice::ReadOnly));
      note("file " + QFileInfo(QFile::symLinkTarget(link)).fileName(),
           QString::fromUtf8(file.readAll()));
    }
    for (auto option = options.begin(); option != options.end(); ++option) {
      note(option.key(), option.value().toStringList().join("|"));
    }
  }

  bool answerMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    QString sender = message.service().mid(1);
    const QString path = QString("/org/freedesktop/portal/desktop/request/%1/%2")
                             .arg(sender.replace('.', '_'), token_);
    if (!bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))))) return false;
    if (role_ == "goes") QCoreApplication::quit();
    if (role_ == "waits" || role_ == "goes") return true;
    QDBusMessage response =
        QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response");
    response << (role_ == "opens" ? 0U : role_ == "refuses" ? 1U : 2U) << QVariantMap();
    return bus.send(response);
  }

  void note(const QString& name, const QString& text) const {
    QFile file(folder_ + "/" + name);
    if (file.open(QIODevice::WriteOnly)) file.write(text.toUtf8());
  }

  QString role_;
  QString folder_;
  QString token_;
};

}  // namespace

int main(int argc, char** argv) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  const QCoreApplication application(argc, argv);
  qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
  Portal portal(argv[1], argv[2]);
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.registerVirtualObject("/org/freedesktop/portal/desktop", &portal,
                                 QDBusConnection::SubPath) ||
      !bus.registerService("org.freedesktop.portal.Desktop")) {
    return 1;
  }
  say("ready");
  return QCoreApplication::exec();
}
