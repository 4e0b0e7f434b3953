// The look of the desktop as its settings portal tells it, over a real session bus.
//
// Called with a number, the program plays the portal, with that number for the color-scheme: it
// prints a line once it is on the bus and stays there. A negative number never answers.
#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QPalette>
#include <QProcess>
#include <QTest>
#include <cstdio>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include "qv_commons/platform/desktop/desktop_platform.h"

namespace {

class Portal final : public QDBusVirtualObject {
 public:
  explicit Portal(int scheme) : scheme_(scheme) {}

  QString introspect(const QString&) const override { return {}; }

  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() != "Read" ||
        message.arguments() != QVariantList{"org.freedesktop.appearance", "color-scheme"}) {
      return false;
    }
    std::puts("asked");
    std::fflush(stdout);
    if (scheme_ < 0) return true;
    const QDBusVariant inner(static_cast<uint>(scheme_));
    return bus.send(
        message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner)))));
  }

 private:
  int scheme_;
};

int playPortal(int scheme) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  Portal portal(scheme);
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.registerVirtualObject("/org/freedesktop/portal/desktop", &portal) ||
      !bus.registerService("org.freedesktop.portal.Desktop")) {
    return 1;
  }
  std::puts("ready");
  std::fflush(stdout);
  return QApplication::exec();
}

qv_commons::UserInterfaceStyle styleWithPortal(const QString& scheme) {
  QProcess portal;
  portal.start(QApplication::applicationFilePath(), {scheme});
  EXPECT_TRUE(portal.waitForReadyRead(10000));
  EXPECT_EQ(portal.readAllStandardOutput(), "ready\n");
  const qv_commons::desktop::DesktopPlatform desktop({});
  const auto& screen = desktop.platform().device;
  QByteArray said;
  EXPECT_TRUE(QTest::qWaitFor([&] { return !(said += portal.readAllStandardOutput()).isEmpty(); }));
  const qv_commons::UserInterfaceStyle before = screen.userInterfaceStyle();
  static_cast<void>(QTest::qWaitFor([&] { return screen.userInterfaceStyle() != before; }, 500));
  const qv_commons::UserInterfaceStyle style = screen.userInterfaceStyle();
  EXPECT_EQ(said + portal.readAllStandardOutput(), "asked\n");
  portal.kill();
  portal.waitForFinished();
  return style;
}

using Style = qv_commons::UserInterfaceStyle;

TEST(SettingsPortal, TellsTheLook) {
  QApplication::setPalette(QPalette(Qt::white));
  EXPECT_EQ(styleWithPortal("1"), Style::dark);
  QApplication::setPalette(QPalette(Qt::black));
  EXPECT_EQ(styleWithPortal("2"), Style::light);
}

TEST(SettingsPortal, LeavesItToThePaletteWhereItHasNoPreference) {
  QApplication::setPalette(QPalette(Qt::black));
  EXPECT_EQ(styleWithPortal("0"), Style::dark);
  QApplication::setPalette(QPalette(Qt::white));
  EXPECT_EQ(styleWithPortal("0"), Style::light);
}

// However often the look is asked for.
TEST(SettingsPortal, IsAskedOnceWhenItDoesNotAnswer) {
  QApplication::setPalette(QPalette(Qt::black));
  EXPECT_EQ(styleWithPortal("-1"), Style::dark);
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  if (argc > 1) return playPortal(QString(argv[1]).toInt());
  return RUN_ALL_TESTS();
}
