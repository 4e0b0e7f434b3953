// A host app for global_menu_test.py: a window with a menu, and a line on its standard input that
// says "ask" for the age gate or "dismiss".
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QSocketNotifier>
#include <cstdio>
#include <iostream>
#include <string>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/desktop_platform.h"

namespace {

void say(const char* words) {
  std::puts(words);
  std::fflush(stdout);
}

}  // namespace

int main(int count, char** arguments) {
  QApplication application(count, arguments);
  QMainWindow window;
  window.resize(800, 760);
  QMenu* file = window.menuBar()->addMenu("&File");
  QObject::connect(file->addAction("Save"), &QAction::triggered, [] { say("saved"); });
  qv_commons::desktop::DesktopSettings settings;
  settings.dataDirectory = arguments[1];
  qv_commons::desktop::DesktopPlatform desktop(settings);
  qv_commons::installPlatform(desktop.platform());
  QSocketNotifier input(0, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, [&] {
    std::string line;
    if (!std::getline(std::cin, line)) return QApplication::quit();
    if (line == "ask") {
      qv_commons::QV_AgeGateHelper::startAgeGateProcess(
          desktop.viewController(window), 18, [] { say("completed"); },
          [](qv_commons::ViewController&) {}, qv_commons::QV_AgeGateColorTheme::defaultTheme(),
          "https://example.com/privacy", "https://example.com/terms");
    } else {
      desktop.viewController(window)->dismissViewController(false, nullptr);
    }
    say(line.c_str());
  });
  window.show();
  return QApplication::exec();
}
