// The desktop host app: every service of the library behind a row of a phone-like window. Where no
// display is found, or with --tour, it shows itself round and leaves pictures and a transcript.
#include <QApplication>
#include <cstdio>

#include "examples/desktop_host/options.h"
#include "examples/desktop_host/session.h"
#include "examples/desktop_host/tour.h"

namespace {

bool displayIsThere() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

QtMessageHandler printMessage = nullptr;

// Two things that Qt says at every start without a display, and that nobody can do anything about.
void printWhatMatters(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool isNoise = message.contains("propagateSizeHints") ||
                       message.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set");
  if (!isNoise) printMessage(type, context, message);
}

qv_commons::desktop::DesktopSettings settingsFor(const host::Options& options) {
  qv_commons::desktop::DesktopSettings settings;
  settings.bundleDirectory = options.bundleDirectory.toStdString();
  settings.dataDirectory = options.dataDirectory.toStdString();
  settings.userInterfaceStyle = options.appearance;
  settings.systemVersion = options.systemVersion;
  if (!options.language.isEmpty()) {
    settings.languages = {options.language.toStdString()};
    settings.calendar.locale = options.language.toStdString();
  }
  settings.onError = [](const std::string& error) {
    std::fprintf(stderr, "desktop_host: %s\n", error.c_str());
  };
  return settings;
}

}  // namespace

int main(int argc, char** argv) {
  // Qt's X11 plug-in ends the process where there is no display; this must come before
  // QApplication.
  if (!displayIsThere() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  printMessage = qInstallMessageHandler(printWhatMatters);
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName("qv-commons-desktop-host");

  int exitCode = 0;
  auto options = host::parseOptions(QCoreApplication::arguments(), exitCode);
  if (!options) return exitCode;
  if (!options->tourDirectory && !displayIsThere()) {
    std::printf("No display was found: running the tour, which leaves its files in out.\n");
    options->tourDirectory = "out";
  }
  if (options->tourDirectory) return host::runTour(*options, settingsFor(*options));

  host::Session session(settingsFor(*options), host::Device::thisDesktop, options->minimumAge);
  session.window().show();
  return QApplication::exec();
}
