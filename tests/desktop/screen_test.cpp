// The look of the desktop, as it tells it or as its palette shows it.
#include <QApplication>
#include <QDialog>
#include <QPalette>
#include <QScreen>
#include <gtest/gtest.h>

#include "qv_commons/platform/desktop/desktop_system.h"

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

UserInterfaceStyle styleWith(UserInterfaceStyle setting) {
  return DesktopPlatform({.userInterfaceStyle = setting}).platform().device.userInterfaceStyle();
}

// 533 points at a scale of 1.5 are 800 pixels; the numbers that divide evenly stay.
TEST(ScreenSize, KeepsTheFractionOfAPoint) {
  EXPECT_DOUBLE_EQ(pointsOf(533, 1.5), 533.33333333333337);
  EXPECT_DOUBLE_EQ(pointsOf(1093, 1.25), 1092.8);
  EXPECT_DOUBLE_EQ(pointsOf(1097, 1.75), 1097.1428571428571);
  EXPECT_EQ(pointsOf(801, 1), 801);
  EXPECT_EQ(pointsOf(800, 1), 800);
  EXPECT_EQ(pointsOf(401, 2), 401);
  EXPECT_EQ(pointsOf(0, 1.5), 0);
}

// Run again at a scale of 1.5, see CMakeLists.txt; the offscreen screen has 800 pixels each way.
TEST(ScreenSize, IsThePixelsByTheScale) {
  const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
  if (QGuiApplication::platformName() != "offscreen") GTEST_SKIP();
  const Size size = DesktopPlatform({}).platform().device.screenBounds();
  EXPECT_DOUBLE_EQ(size.width * scale, 800);
  EXPECT_DOUBLE_EQ(size.height * scale, 800);
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
  const QPoint place = windowOf(*alert).mapTo(&host, QPoint(50, 10));
  const auto ground = [&] { return host.grab().toImage().pixelColor(place).name(); };
  EXPECT_EQ(ground(), "#ffffff");
  usePalette(Qt::black, Qt::white);
  settle();
  EXPECT_EQ(ground(), "#1c1c1e");
  alert->setOverrideUserInterfaceStyle(UserInterfaceStyle::light);
  EXPECT_EQ(ground(), "#ffffff");
}

TEST_F(ScreenLook, HasTheSizeOfThePrimaryScreen) {
  const Size bounds = DesktopPlatform({}).platform().device.screenBounds();
  EXPECT_EQ(bounds.width, QApplication::primaryScreen()->geometry().width());
  EXPECT_EQ(bounds.height, QApplication::primaryScreen()->geometry().height());
}

}  // namespace
}  // namespace qv_commons::desktop
