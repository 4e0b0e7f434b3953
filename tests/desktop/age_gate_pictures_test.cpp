// The screens of the age gate, pixel by pixel, with a stopped clock, one font, style and locale. A
// release of Debian comes with its own version of the font and of Qt's way to draw it: each has its
// pictures, in the folder of that Qt's version.
//
// refresh_pictures.sh draws them anew; look at each before keeping it.
#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QPushButton>
#include <QTest>
#include <QVersionNumber>

#include "qv_commons/platform/desktop/desktop_style.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {
namespace {

struct Picture {
  const char* name;
  QSize size;
  UserInterfaceStyle style;
  Qt::LayoutDirection direction;
  const char* locale;
};

constexpr auto kLight = UserInterfaceStyle::light;
constexpr auto kDark = UserInterfaceStyle::dark;

class AgeGatePictures : public AgeGateTest, public testing::WithParamInterface<Picture> {
 protected:
  AgeGatePictures() : AgeGateTest(GetParam().size) {
    QApplication::setLayoutDirection(GetParam().direction);
    DesktopSettings pinned = settings();
    pinned.userInterfaceStyle = GetParam().style;
    pinned.calendar = {GetParam().locale, "UTC"};
    restart(pinned);
    // Which is the host's and ends at the sheet.
    window_->setStyleSheet(
        "QWidget QWidget { color: red; font-size: 40px; padding: 9px; border: 3px solid red }");
  }
  ~AgeGatePictures() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  static void expectPicture(const std::string& kind, QWidget& screen) {
    const QString name = QString::fromStdString(kind) + "-" + GetParam().name +
                         (textScale() > 1 ? "-large" : "") + ".png";
    const QVersionNumber qt = QLibraryInfo::version();
    const QDir folder(QStringLiteral(QV_COMMONS_PICTURES "/qt%1.%2")
                          .arg(qt.majorVersion())
                          .arg(qt.minorVersion()));
    const QString path = folder.filePath(name);
    const QImage drawn = screen.window()->grab().toImage().convertToFormat(QImage::Format_RGB32);
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
};

TEST_P(AgeGatePictures, AreTheSame) {
  startAgeGate(18);
  expectPicture("gate", *gate());
  click(wheel(*gate(), DateField::day));
  press(*gate(), Qt::Key_Up);
  auto& button = view<QPushButton>(*gate(), "confirmBtn");
  button.setFocus();
  QTest::qWait(1);
  expectPicture("gate-ready", *gate());
  press(*gate(), Qt::Key_Space);
  ASSERT_NE(refusal(), nullptr);
  expectPicture("refusal", *refusal());
}

INSTANTIATE_TEST_SUITE_P(
    Screens, AgeGatePictures,
    testing::Values(Picture{"phone-light", {390, 844}, kLight, Qt::LeftToRight, "en-US"},
                    Picture{"phone-dark", {390, 844}, kDark, Qt::LeftToRight, "en-US"},
                    Picture{"small-light", {320, 568}, kLight, Qt::LeftToRight, "en-GB"},
                    Picture{"rtl-dark", {390, 844}, kDark, Qt::RightToLeft, "he-IL-u-ca-hebrew"},
                    Picture{"tablet-light", {1024, 1366}, kLight, Qt::LeftToRight, "en-US"},
                    Picture{"window-dark", {800, 600}, kDark, Qt::LeftToRight, "en-US"}),
    [](const auto& picture) {
      std::string name = picture.param.name;
      name.erase(name.find('-'), 1);
      return name;
    });

}  // namespace
}  // namespace qv_commons::desktop
