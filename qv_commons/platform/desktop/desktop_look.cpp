#include "qv_commons/platform/desktop/desktop_look.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace qv_commons::desktop {
namespace {

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

DesktopLook::DesktopLook()
    : question_("org.freedesktop.portal.Settings", "Read",
                {"org.freedesktop.appearance", "color-scheme"}, [this] {
                  const UserInterfaceStyle told = toldStyle();
                  if (told != UserInterfaceStyle::unspecified && told != paletteStyle()) {
                    tellWindows();
                  }
                }) {}

// https://flatpak.github.io/xdg-desktop-portal: org.freedesktop.portal.Settings, where
// color-scheme is 1 for dark, 2 for light and 0 for no preference.
UserInterfaceStyle DesktopLook::toldStyle() const {
  const uint scheme = question_.answer().value_or(0).toUInt();
  if (scheme == 1) return UserInterfaceStyle::dark;
  if (scheme == 2) return UserInterfaceStyle::light;
  return UserInterfaceStyle::unspecified;
}

UserInterfaceStyle DesktopLook::style(UserInterfaceStyle setting) const {
  if (setting != UserInterfaceStyle::unspecified) return setting;
  const UserInterfaceStyle told = toldStyle();
  return told != UserInterfaceStyle::unspecified ? told : paletteStyle();
}

}  // namespace qv_commons::desktop
