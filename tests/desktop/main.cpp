// The entry of every program that tests the desktop adapter.
#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include "tests/desktop/own_language.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const bool hasDisplay =
      !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  if (!hasDisplay) qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);  // keeps away from the user's own data
  QApplication application(argc, argv);
  speakEnglish();
  QApplication::setApplicationName("qv_commons_tests");
  QApplication::setStyle("fusion");
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
