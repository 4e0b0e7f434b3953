#include "qv_commons/platform/desktop/desktop_system.h"

#include <QDesktopServices>
#include <QLocale>
#include <QSysInfo>
#include <QUrl>
#include <chrono>
#include <cstdio>

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

std::vector<std::string> DesktopLanguages::preferredLanguages() const {
  std::vector<std::string> languages;
  for (const QString& language : QLocale::system().uiLanguages()) {
    if (language != "C") languages.push_back(toUtf8(language));
  }
  return languages;
}

double DesktopClock::timeIntervalSince1970() const {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count();
}

void DesktopApplication::openURL(const URL& url) {
  QDesktopServices::openUrl(QUrl(fromUtf8(url.text())));
}

}  // namespace qv_commons::desktop
