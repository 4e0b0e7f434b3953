// Opens the age gate and paints it: gate PICTURE DATA_FOLDER
#include <QApplication>
#include <QWidget>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/qv_commons.h"

using namespace qv_commons;

namespace {

// The window in which the picker of the gate is seen.
QWidget* windowOfGate() {
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == "datePicker" && widget->isVisible()) return widget->window();
  }
  return nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QWidget window;
  window.resize(390, 844);
  const desktop::DesktopPlatform desktop({.languages = {"en"},
                                          .dataDirectory = argv[2],
                                          .calendar = {"en-US", "UTC"},
                                          .userInterfaceStyle = UserInterfaceStyle::light});
  installPlatform(desktop.platform());
  const auto screen = desktop.viewController(window);
  window.show();
  QV_AgeGateHelper::startAgeGateProcess(screen, 18, nullptr, nullptr,
                                        QV_AgeGateColorTheme::defaultTheme(),
                                        "https://example.com/privacy", "https://example.com/terms");
  while (windowOfGate() == nullptr) QApplication::processEvents();
  return windowOfGate()->grab().save(argv[1]) ? 0 : 1;
}
