#include "qv_commons/platform/desktop/desktop_system.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QSysInfo>
#include <QUrl>
#include <chrono>
#include <cstdio>

#include "qv_commons/platform/desktop/interface_style.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/support/url.h"

namespace qv_commons::desktop {

void DesktopConsole::print(std::string_view line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

std::string DesktopDevice::systemVersion() const {
  const QString version = QSysInfo::productVersion();
  return toUtf8(version == "unknown" ? QSysInfo::kernelVersion() : version);
}

std::string DesktopDevice::localizedModel() const {
  QString distribution = QSysInfo::productType();
  if (distribution.isEmpty() || distribution == "unknown") distribution = "linux";
  distribution[0] = distribution[0].toUpper();
  return toUtf8(distribution + " PC");
}

std::vector<std::string> DesktopDevice::preferredLanguages() const {
  std::vector<std::string> languages;
  for (const QString& language : QLocale::system().uiLanguages()) {
    if (language != "C") languages.push_back(toUtf8(language));
  }
  return languages;
}

Size DesktopDevice::screenBounds() const {
  const QScreen* monitor = QGuiApplication::primaryScreen();
  if (monitor == nullptr) return {};
  const QSizeF size = monitor->geometry().size();
  return {size.width(), size.height()};
}

UserInterfaceStyle DesktopDevice::userInterfaceStyle() const {
  return currentUserInterfaceStyle(style_);
}

Instant DesktopClock::now() const {
  return std::chrono::system_clock::now();
}

void DesktopApplication::openURL(const URL& url) {
  QDesktopServices::openUrl(QUrl(fromUtf8(url.text())));
}

}  // namespace qv_commons::desktop
