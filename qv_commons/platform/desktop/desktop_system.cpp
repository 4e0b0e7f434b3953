#include "qv_commons/platform/desktop/desktop_system.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QScreen>
#include <QSysInfo>
#include <QUrl>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/support/url.h"

namespace qv_commons::desktop {

double pointsOf(int rounded, double scale) {
  constexpr double kRounding = 0.5;
  const double pixels = 2 * std::round(rounded * scale / 2);
  const double points = pixels / scale;
  return std::abs(points - rounded) <= kRounding ? points : rounded;
}

void DesktopApplication::print(std::string_view line) {
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

std::vector<std::string> preferredLanguages(const DesktopSettings& settings) {
  if (!settings.languages.empty()) return settings.languages;
  std::vector<std::string> languages;
  for (const QString& language : QLocale::system().uiLanguages()) {
    if (language != "C") languages.push_back(toUtf8(language));
  }
  return languages;
}

std::vector<std::string> DesktopDevice::preferredLanguages() const {
  return desktop::preferredLanguages(settings_);
}

Size DesktopDevice::screenBounds() const {
  const QScreen* monitor = QGuiApplication::primaryScreen();
  if (monitor == nullptr) return {};
  const QSize size = monitor->geometry().size();
  const double scale = monitor->devicePixelRatio();
  return {pointsOf(size.width(), scale), pointsOf(size.height(), scale)};
}

UserInterfaceStyle DesktopDevice::userInterfaceStyle() const {
  return look_.style(settings_.userInterfaceStyle);
}

Instant DesktopClock::now() const {
  return std::chrono::system_clock::now();
}

void DesktopApplication::openURL(const URL& url) {
  const QString text = fromUtf8(url.text());
  const QUrl asQtWritesIt(text);
  if (QString::fromLatin1(asQtWritesIt.toEncoded()) == text) {
    QDesktopServices::openUrl(asQtWritesIt);
  } else {
    // "%41" would become "A" and "%3f" "%3F": such a link goes to the desktop's opener as it
    // stands.
    QProcess::startDetached("xdg-open", {text});
  }
}

}  // namespace qv_commons::desktop
