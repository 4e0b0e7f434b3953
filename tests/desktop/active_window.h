// The keyboard for a window, as on every window system.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace qv_commons::desktop {

// Gives the keyboard to a window, as its user does by a click on it. No window manager need be
// there that would do it for a new one.
inline void activate(QWidget& window) {
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  if (QGuiApplication::platformName() == "wayland") {  // which leaves it to persons alone
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QApplication::setActiveWindow(&window);
    QT_WARNING_POP
  } else {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
}

}  // namespace qv_commons::desktop
