#include "qv_commons/platform/desktop/interface_style.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>

namespace qv_commons::desktop {
namespace {

// Asking for a bus where none runs would start one.
bool hasSessionBus() {
  return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
         QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus");
}

// https://flatpak.github.io/xdg-desktop-portal: org.freedesktop.portal.Settings, where
// color-scheme is 1 for dark, 2 for light and 0 for no preference.
UserInterfaceStyle portalStyle() {
  constexpr int kPatienceMilliseconds = 250;
  if (!hasSessionBus()) return UserInterfaceStyle::unspecified;
  QDBusMessage question = QDBusMessage::createMethodCall("org.freedesktop.portal.Desktop",
                                                         "/org/freedesktop/portal/desktop",
                                                         "org.freedesktop.portal.Settings", "Read");
  question << "org.freedesktop.appearance"
           << "color-scheme";
  const QDBusMessage answer =
      QDBusConnection::sessionBus().call(question, QDBus::Block, kPatienceMilliseconds);
  if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) {
    return UserInterfaceStyle::unspecified;
  }
  QVariant scheme = answer.arguments().constFirst();
  while (scheme.canConvert<QDBusVariant>()) scheme = scheme.value<QDBusVariant>().variant();
  if (scheme.toUInt() == 1) return UserInterfaceStyle::dark;
  if (scheme.toUInt() == 2) return UserInterfaceStyle::light;
  return UserInterfaceStyle::unspecified;
}

UserInterfaceStyle paletteStyle() {
  const QPalette palette = QGuiApplication::palette();
  const bool dark =
      palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  return dark ? UserInterfaceStyle::dark : UserInterfaceStyle::light;
}

}  // namespace

UserInterfaceStyle currentUserInterfaceStyle(UserInterfaceStyle setting) {
  if (setting != UserInterfaceStyle::unspecified) return setting;
  const UserInterfaceStyle style = portalStyle();
  return style != UserInterfaceStyle::unspecified ? style : paletteStyle();
}

}  // namespace qv_commons::desktop
