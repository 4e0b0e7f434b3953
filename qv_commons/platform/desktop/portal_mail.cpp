#include "qv_commons/platform/desktop/portal_mail.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QGuiApplication>
#include <QUuid>
#include <QWidget>
#include <fcntl.h>
#include <utility>

#include "qv_commons/platform/desktop/file_descriptor.h"
#include "qv_commons/platform/desktop/portal_question.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

constexpr const char* kRequestInterface = "org.freedesktop.portal.Request";
constexpr int kFirstAnswerMilliseconds = 10'000;

// As the portal wants it; on Wayland an application has no plain name for its window.
QString identifierOf(const QWidget* window) {
  if (window == nullptr || QGuiApplication::platformName() != "xcb") return "";
  return "x11:" + QString::number(window->window()->winId(), 16);
}

// The portal's own rule for where a request with that token is.
QString requestPath(const QString& token) {
  QString sender = QDBusConnection::sessionBus().baseService().mid(1);
  return QString(kPortalPath) + "/request/" + sender.replace('.', '_') + "/" + token;
}

QList<QDBusUnixFileDescriptor> openAll(const QStringList& files) {
  QList<QDBusUnixFileDescriptor> descriptors;
  for (const QString& path : files) {
    const FileDescriptor file(::open(path.toUtf8().constData(), O_RDONLY | O_CLOEXEC));
    descriptors.append(QDBusUnixFileDescriptor(file.number()));  // a copy
  }
  return descriptors;
}

QVariantMap optionsFor(const HandedMail& mail, const QString& token) {
  qDBusRegisterMetaType<QList<QDBusUnixFileDescriptor>>();
  QVariantMap options{{"handle_token", token},
                      {"subject", mail.subject},
                      {"body", mail.body},
                      {"attachment_fds", QVariant::fromValue(openAll(mail.files))}};
  // Several addresses are newer than one, and not known everywhere.
  if (mail.addresses.size() == 1) {
    options.insert("address", mail.addresses.constFirst());
  } else {
    options.insert("addresses", mail.addresses);
  }
  return options;
}

}  // namespace

PortalMail::PortalMail(const HandedMail& mail, const QWidget* window, Done done)
    : done_(std::move(done)) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  portal_ = std::make_unique<QDBusServiceWatcher>(kPortalService, bus,
                                                  QDBusServiceWatcher::WatchForUnregistration);
  connect(portal_.get(), &QDBusServiceWatcher::serviceUnregistered, this,
          [this] { finish(Outcome::failed, Sentence("The desktop's mail portal has gone.")); });
  const QString token = "qv_commons_" + QUuid::createUuid().toString(QUuid::Id128);
  listenTo(requestPath(token));
  QDBusMessage call = QDBusMessage::createMethodCall(kPortalService, kPortalPath,
                                                     kMailPortalInterface, "ComposeEmail");
  call << identifierOf(window) << optionsFor(mail, token);
  call_ = std::make_unique<QDBusPendingCallWatcher>(bus.asyncCall(call, kFirstAnswerMilliseconds));
  connect(call_.get(), &QDBusPendingCallWatcher::finished, this, [this] { onAccepted(); });
}

// The portal takes its dialog away then.
PortalMail::~PortalMail() {
  if (!done_) return;
  QDBusConnection::sessionBus().send(
      QDBusMessage::createMethodCall(kPortalService, request_, kRequestInterface, "Close"));
}

void PortalMail::listenTo(const QString& request) {
  request_ = request;
  QDBusConnection::sessionBus().connect(kPortalService, request, kRequestInterface, "Response",
                                        this, SLOT(onResponse(uint, QVariantMap)));
}

void PortalMail::onAccepted() {
  const QDBusPendingReply<QDBusObjectPath> reply = *call_;
  if (reply.isError()) {
    return finish(Outcome::failed, Sentence("The desktop's mail portal says: %1.",
                                            {toUtf8(reply.error().message())}));
  }
  // Portals from before the rule choose a path of their own.
  if (reply.value().path() != request_) listenTo(reply.value().path());
}

void PortalMail::onResponse(uint response, const QVariantMap&) {
  if (response == 0) return finish(Outcome::opened);
  if (response == 1) return finish(Outcome::refused);
  finish(Outcome::failed, Sentence("The desktop's mail portal could not open a mail program."));
}

void PortalMail::finish(Outcome outcome, const Failure& failure) {
  const Done done = std::exchange(done_, nullptr);
  if (done) done(outcome, failure);
}

}  // namespace qv_commons::desktop
