// Screens pixel by pixel, with a stopped clock, one font, style and locale. A release of Debian
// comes with its own version of the font and of Qt's way to draw it: each has its pictures, in the
// folder of that Qt's version.
//
// refresh_pictures.sh draws them anew; look at each before keeping it.
#pragma once

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QVersionNumber>
#include <string>

#include "qv_commons/platform/desktop/desktop_style.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {

inline constexpr auto kLight = UserInterfaceStyle::light;
inline constexpr auto kDark = UserInterfaceStyle::dark;

struct Picture {
  const char* name;
  QSize size;
  UserInterfaceStyle style;
  Qt::LayoutDirection direction;
  const char* locale;
};

// A name that a test may have.
inline std::string testName(const Picture& picture) {
  std::string name = picture.name;
  name.erase(name.find('-'), 1);
  return name;
}

class ScreenPictures : public AgeGateTest, public testing::WithParamInterface<Picture> {
 protected:
  ScreenPictures() : AgeGateTest(GetParam().size) {
    QApplication::setLayoutDirection(GetParam().direction);
    QApplication::setCursorFlashTime(0);  // the caret is always seen
    QLocale::setDefault(QLocale("en-GB"));
    DesktopSettings pinned = settings();
    pinned.userInterfaceStyle = GetParam().style;
    pinned.calendar = {GetParam().locale, "UTC"};
    restart(pinned);
    // Which is the host's and ends at the sheet.
    window_->setStyleSheet(
        "QWidget QWidget { color: red; font-size: 40px; padding: 9px; border: 3px solid red }");
  }
  ~ScreenPictures() override {
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(locale_);
    QApplication::setCursorFlashTime(flashTime_);
  }

  // All of the window is as it was drawn before, under that name.
  void expectPicture(const std::string& kind) {
    const QString name = QString::fromStdString(kind) + "-" + GetParam().name +
                         (textScale() > 1 ? "-large" : "") + ".png";
    const QVersionNumber qt = QLibraryInfo::version();
    const QDir folder(QStringLiteral(QV_COMMONS_PICTURES "/qt%1.%2")
                          .arg(qt.majorVersion())
                          .arg(qt.minorVersion()));
    const QString path = folder.filePath(name);
    const QImage drawn = window_->grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (qEnvironmentVariableIsSet("QV_COMMONS_REFRESH_PICTURES")) {
      ASSERT_TRUE(folder.mkpath(".") && drawn.save(path));
      return;
    }
    if (!folder.exists()) GTEST_SKIP() << "no pictures of this Qt: " << folder.path().toStdString();
    const QImage kept = QImage(path).convertToFormat(QImage::Format_RGB32);
    if (drawn == kept) return;
    const QString seen = QDir::temp().filePath(name);
    drawn.save(seen);
    ADD_FAILURE() << "not as in " << path.toStdString() << "; drawn: " << seen.toStdString();
  }

 private:
  const QLocale locale_;
  const int flashTime_ = QApplication::cursorFlashTime();
};

}  // namespace qv_commons::desktop
