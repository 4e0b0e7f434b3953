#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/qv_commons.h"

using namespace qv_commons;

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QPushButton window("Contact support");
  window.resize(390, 844);

  // A folder with the app's Info.plist: CFBundleDisplayName, CFBundleIdentifier and its versions.
  const desktop::DesktopPlatform desktop({.bundleDirectory = "Notes.bundle"});
  installPlatform(desktop.platform());
  const auto screen = desktop.viewController(window);

  QObject::connect(&window, &QPushButton::clicked, [&] {
    QV_SupportHelper::shared().contactSupport(*screen, "support@example.com", "Help with Notes", {},
                                              std::nullopt, std::nullopt, {});
  });
  window.show();

  QV_AgeGateHelper::startAgeGateProcess(
      screen, 16, [&] { window.setText("Welcome. Contact support"); },
      [](ViewController&) { QMessageBox::information(nullptr, "Notes", "support@example.com"); },
      QV_AgeGateColorTheme::defaultTheme(), "https://example.com/privacy",
      "https://example.com/terms");
  return QApplication::exec();
}
