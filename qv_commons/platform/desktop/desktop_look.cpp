#include "qv_commons/platform/desktop/desktop_look.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QFileInfo>
#include <QPalette>
#include <QWidget>

namespace qv_commons::desktop {
namespace {

// Asking for a bus where none runs would start one.
bool hasSessionBus() {
  return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

UserInterfaceStyle paletteStyle() {
  const QPalette palette = QGuiApplication::palette();
  const bool dark =
      palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  return dark ? UserInterfaceStyle::dark : UserInterfaceStyle::light;
}

void tellWindows() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    QEvent change(QEvent::ApplicationPaletteChange);
    QCoreApplication::sendEvent(widget, &change);
  }
}

}  // namespace

DesktopLook::DesktopLook() {
  if (!hasSessionBus()) return;
  QDBusMessage question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                         "/org/freedesktop/portal/desktop",
                                                         "org.freedesktop.portal.Settings", "Read");
  question << "org.freedesktop.appearance"
           << "color-scheme";
  answer_ =
      std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::sessionBus().asyncCall(question));
  QObject::connect(answer_.get(), &QDBusPendingCallWatcher::finished, answer_.get(), [this] {
    const UserInterfaceStyle told = toldStyle();
    if (told != UserInterfaceStyle::unspecified && told != paletteStyle()) tellWindows();
  });
}

DesktopLook::~DesktopLook() = default;

// https://flatpak.github.io/xdg-desktop-portal: org.freedesktop.portal.Settings, where
// color-scheme is 1 for dark, 2 for light and 0 for no preference.
UserInterfaceStyle DesktopLook::toldStyle() const {
  if (!answer_ || !answer_->isFinished()) return UserInterfaceStyle::unspecified;
  const QList<QVariant> arguments = answer_->reply().arguments();
  if (answer_->isError() || arguments.isEmpty()) return UserInterfaceStyle::unspecified;
  QVariant scheme = arguments.constFirst();
  while (scheme.canConvert<QDBusVariant>()) scheme = scheme.value<QDBusVariant>().variant();
  if (scheme.toUInt() == 1) return UserInterfaceStyle::dark;
  if (scheme.toUInt() == 2) return UserInterfaceStyle::light;
  return UserInterfaceStyle::unspecified;
}

UserInterfaceStyle DesktopLook::style(UserInterfaceStyle setting) const {
  if (setting != UserInterfaceStyle::unspecified) return setting;
  const UserInterfaceStyle told = toldStyle();
  return told != UserInterfaceStyle::unspecified ? told : paletteStyle();
}

}  // namespace qv_commons::desktop
