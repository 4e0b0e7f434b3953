// Prints where the library's resource bundle is.
#include <QApplication>
#include <iostream>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/qv_commons.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const qv_commons::desktop::DesktopPlatform desktop({});
  qv_commons::installPlatform(desktop.platform());
  const auto bundle = qv_commons::QV_BundleFileHelper::getQVCommonsResourceBundle();
  const auto layout =
      bundle ? bundle->URLForResource("QV_AgeGateViewController", "ui") : std::nullopt;
  std::cout << layout.value_or("nowhere") << "\n";
}
