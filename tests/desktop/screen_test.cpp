// The look of the desktop, as it tells it or as its palette shows it.
#include <QApplication>
#include <QDialog>
#include <QPalette>
#include <QScreen>
#include <gtest/gtest.h>

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

UserInterfaceStyle styleWith(UserInterfaceStyle setting) {
  return DesktopPlatform({.userInterfaceStyle = setting}).platform().device.userInterfaceStyle();
}

class ScreenLook : public testing::Test {
 protected:
  void TearDown() override { QApplication::setPalette(before_); }

  static void usePalette(Qt::GlobalColor window, Qt::GlobalColor text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    QApplication::setPalette(palette);
  }

 private:
  QPalette before_ = QApplication::palette();
};

TEST_F(ScreenLook, IsThatOfTheSetting) {
  EXPECT_EQ(styleWith(UserInterfaceStyle::dark), UserInterfaceStyle::dark);
  EXPECT_EQ(styleWith(UserInterfaceStyle::light), UserInterfaceStyle::light);
}

// The program runs without a session bus, or with one on which nobody answers.
TEST_F(ScreenLook, IsThatOfThePaletteWhereTheDesktopDoesNotTell) {
  usePalette(Qt::black, Qt::white);
  EXPECT_EQ(styleWith(UserInterfaceStyle::unspecified), UserInterfaceStyle::dark);
  usePalette(Qt::white, Qt::black);
  EXPECT_EQ(styleWith(UserInterfaceStyle::unspecified), UserInterfaceStyle::light);
}

TEST_F(ScreenLook, ReachesWindowsThatAreOpen) {
  usePalette(Qt::white, Qt::black);
  DesktopPlatform desktop({});
  QWidget host;
  host.show();
  const auto screen = desktop.viewController(host);
  const auto alert = desktop.platform().viewControllers.makeAlertController("Error", "It broke.",
                                                                            AlertStyle::alert);
  alert->addAction("OK", AlertActionStyle::standard, nullptr);
  screen->presentViewController(alert, true, nullptr);
  settle();
  EXPECT_TRUE(windowOf(*alert).styleSheet().contains("background: #ffffff"));
  usePalette(Qt::black, Qt::white);
  settle();
  EXPECT_TRUE(windowOf(*alert).styleSheet().contains("background: #1c1c1e"));
  alert->setOverrideUserInterfaceStyle(UserInterfaceStyle::light);
  EXPECT_TRUE(windowOf(*alert).styleSheet().contains("background: #ffffff"));
}

TEST_F(ScreenLook, HasTheSizeOfThePrimaryScreen) {
  const Size bounds = DesktopPlatform({}).platform().device.screenBounds();
  EXPECT_EQ(bounds.width, QApplication::primaryScreen()->geometry().width());
  EXPECT_EQ(bounds.height, QApplication::primaryScreen()->geometry().height());
}

}  // namespace
}  // namespace qv_commons::desktop
