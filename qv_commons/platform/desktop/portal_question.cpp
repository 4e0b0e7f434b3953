#include "qv_commons/platform/desktop/portal_question.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFileInfo>
#include <utility>

namespace qv_commons::desktop {
namespace {

// Asking for a bus where none runs would start one.
bool hasSessionBus() {
  return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

}  // namespace

PortalQuestion::PortalQuestion(const QString& interface, const QString& method,
                               const QVariantList& arguments, std::function<void()> answered) {
  if (!hasSessionBus()) return;
  QDBusMessage question =
      QDBusMessage::createMethodCall(kPortalService, kPortalPath, interface, method);
  question.setArguments(arguments);
  call_ =
      std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::sessionBus().asyncCall(question));
  if (!answered) return;
  QObject::connect(call_.get(), &QDBusPendingCallWatcher::finished, call_.get(),
                   std::move(answered));
}

PortalQuestion::~PortalQuestion() = default;

bool PortalQuestion::isOpen() const {
  return call_ != nullptr && !call_->isFinished();
}

std::optional<QVariant> PortalQuestion::answer() const {
  if (call_ == nullptr || isOpen() || call_->isError()) return std::nullopt;
  const QVariantList values = call_->reply().arguments();
  if (values.isEmpty()) return std::nullopt;
  QVariant value = values.constFirst();
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace qv_commons::desktop
