// The layouts of the age gate: their texts, and how they are laid out at any size.
#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

#include "qv_commons/age_gate/age_gate_color_theme.h"
#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/desktop/desktop_style.h"
#include "qv_commons/platform/desktop/layout_file.h"

#include "tests/desktop/age_gate_fixture.h"
#include "tests/desktop/in_sight.h"

namespace qv_commons::desktop {
namespace {

namespace fs = std::filesystem;

class AgeGateLayoutTest : public AgeGateTest {
 protected:
  using AgeGateTest::AgeGateTest;

  QWidget& showGate() {
    startAgeGate();
    return *gate();
  }
  QWidget& showRefusal() {
    if (gate() == nullptr) startAgeGate();
    pickYear(*gate(), "2020");
    confirm();
    return *refusal();
  }
};

TEST_F(AgeGateLayoutTest, HasTextsThatFitTheLinksToTheCharacter) {
  QWidget& asking = showGate();
  const QString policies = view<QTextBrowser>(asking, "tos").toPlainText();
  EXPECT_EQ(policies.length(), 33);
  EXPECT_EQ(policies.mid(0, 14), "Privacy Policy");
  EXPECT_EQ(policies.mid(14, 3), " & ");
  EXPECT_EQ(policies.mid(17, 16), "Terms of Service");
  QWidget& refusing = showRefusal();
  EXPECT_EQ(view<QTextBrowser>(refusing, "tos").toPlainText(), policies);
  const QString contact = view<QTextBrowser>(refusing, "contact").toPlainText();
  EXPECT_EQ(contact.length(), 61);
  EXPECT_EQ(contact.mid(0, 38), "If you think this is an error, please ");
  EXPECT_EQ(contact.mid(38, 22), "contact us for support");
}

// From then on each change of a text lays out all of them.
TEST_F(AgeGateLayoutTest, IsMeasuredOnceItIsWhole) {
  const auto path = QV_BundleFileHelper::getQVCommonsResourceBundle()->URLForResource(
      "QV_AgeGateViewController", "ui");
  const IcuCalendar calendar;
  const auto loaded = loadLayout({.layout = path.value_or("")}, calendar, textScale());
  EXPECT_FALSE(loaded->findChild<QScrollArea*>()->widgetResizable());
  EXPECT_TRUE(showGate().findChild<QScrollArea*>()->widgetResizable());
}

void expectNoMinimumAge(QWidget& screen) {
  for (const QLabel* label : screen.findChildren<QLabel*>()) {
    EXPECT_FALSE(label->accessibleName().contains("16")) << label->accessibleName().toStdString();
  }
}

TEST_F(AgeGateLayoutTest, DoesNotTellTheMinimumAge) {
  expectNoMinimumAge(showGate());
  expectNoMinimumAge(showRefusal());
}

// Width and height of the window, and the layout's direction.
using Shape = std::tuple<int, int, Qt::LayoutDirection>;

class AgeGateShapeTest : public AgeGateLayoutTest, public testing::WithParamInterface<Shape> {
 protected:
  AgeGateShapeTest() : AgeGateLayoutTest(QSize(std::get<0>(GetParam()), std::get<1>(GetParam()))) {
    QApplication::setLayoutDirection(std::get<2>(GetParam()));
  }
  ~AgeGateShapeTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

  // No word is wider than its line.
  static void expectWordsFit(QWidget& screen) {
    for (const QLabel* label : screen.findChildren<QLabel*>()) {
      for (const QString& word : label->accessibleName().split(' ')) {
        EXPECT_LE(label->fontMetrics().horizontalAdvance(word), label->width())
            << word.toStdString();
      }
    }
    for (const Wheel* wheel : screen.findChildren<Wheel*>()) {
      EXPECT_LE(wheel->fontMetrics().horizontalAdvance(wheel->shownText()), wheel->width());
    }
  }

  static void expectReadableWidth(QWidget& screen) {
    const auto& panel = view<QWidget>(screen, "bg");
    EXPECT_LE(panel.width(), std::max(600, qRound(560 * textScale())));
    const QRect place(panel.mapTo(&screen, QPoint()), panel.size());
    EXPECT_LE(std::abs(place.center().x() - screen.rect().center().x()), 1);
  }
};

TEST_P(AgeGateShapeTest, ShowsTheGateWhole) {
  QWidget& screen = showGate();
  expectAllInSight(screen);
  expectWordsFit(screen);
  expectReadableWidth(screen);
  EXPECT_EQ(view<QLabel>(screen, "header").font().pixelSize(), qRound(24 * textScale()));
  EXPECT_EQ(QFontInfo(view<QLabel>(screen, "header").font()).family(), "Inter");
}

TEST_P(AgeGateShapeTest, ShowsTheRefusalWhole) {
  QWidget& screen = showRefusal();
  expectAllInSight(screen);
  expectWordsFit(screen);
  expectReadableWidth(screen);
}

TEST_P(AgeGateShapeTest, HasTargetsThatAFingerHits) {
  QWidget& screen = showGate();
  for (const Wheel* wheel : screen.findChildren<Wheel*>()) {
    EXPECT_GE(wheel->width(), 44);
    EXPECT_GE(Wheel::rowHeightFor(wheel->font()), 44);
  }
  EXPECT_GE(view<QWidget>(screen, "confirmBtn").height(), 44);
}

TEST_P(AgeGateShapeTest, BringsWhatHasTheFocusIntoSight) {
  QWidget& screen = showGate();
  press(screen, Qt::Key_Up);
  for (int tabs = 0; tabs < 6; ++tabs) {
    const QWidget* focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr);
    auto& viewport = *view<QScrollArea>(screen, "scroll").viewport();
    const QPoint middle = focused->mapTo(&viewport, focused->rect().center());
    EXPECT_TRUE(viewport.rect().contains(middle)) << focused->objectName().toStdString();
    press(screen, Qt::Key_Tab);
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, AgeGateShapeTest,
                         testing::Combine(testing::Values(320, 390, 800, 1024),
                                          testing::Values(568, 844, 1366),
                                          testing::Values(Qt::LeftToRight, Qt::RightToLeft)));

// By the Web Content Accessibility Guidelines.
double luminanceOf(const Color& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrastOf(const Color& one, const Color& other) {
  const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

class AgeGateContrastTest : public AgeGateLayoutTest {
 protected:
  void useStyle(UserInterfaceStyle style) {
    DesktopSettings dressed = settings();
    dressed.userInterfaceStyle = style;
    restart(dressed);
  }

  // The strongest contrast to the panel in the outermost row of the picker.
  double contrastOfOutermostRow() {
    const auto& picker = view<WheelDatePicker>(showGate(), "datePicker");
    press(*gate(), Qt::Key_Home);
    const QImage picture = gate()->grab().toImage();
    const QPoint corner = picker.mapTo(gate(), QPoint());
    double strongest = 1;
    for (int y = corner.y(); y < corner.y() + picker.height() / 5; ++y) {
      for (int x = corner.x(); x < corner.x() + picker.width(); ++x) {
        const QColor pixel = picture.pixelColor(x, y);
        strongest = std::max(strongest, contrastOf({pixel.redF(), pixel.greenF(), pixel.blueF(), 1},
                                                   theme_->backgroundColor));
      }
    }
    return strongest;
  }
};

TEST_F(AgeGateContrastTest, IsEnoughWhereverTheColoursOfTheDefaultThemeAllowIt) {
  EXPECT_GT(contrastOf(theme_->textColor, theme_->backgroundColor), 8.8);
  EXPECT_GT(contrastOf(theme_->buttonTextColor, theme_->buttonBGColor), 20.9);
  EXPECT_GT(contrastOf(theme_->policiesTextColor, theme_->buttonBGColor), 5.4);
  // The links in light are 3.8 to 1, by the theme's own grey; their weight helps.
  EXPECT_NEAR(contrastOf(theme_->policiesTextColor, theme_->backgroundColor), 3.8, 0.1);
  EXPECT_GT(contrastOfOutermostRow(), 4.5);
}

TEST_F(AgeGateContrastTest, IsEnoughInDarkToo) {
  useStyle(UserInterfaceStyle::dark);
  EXPECT_GT(contrastOf(theme_->textColor, theme_->backgroundColor), 16);
  EXPECT_GT(contrastOf(theme_->buttonTextColor, theme_->buttonBGColor), 20.9);
  EXPECT_GT(contrastOf(theme_->policiesTextColor, theme_->backgroundColor), 4.8);
  // The title of the button that can't be pressed yet is 3.5 to 1, by the theme's own grey.
  EXPECT_NEAR(contrastOf(theme_->policiesTextColor, theme_->buttonBGColor), 3.45, 0.1);
  EXPECT_GT(contrastOfOutermostRow(), 4.5);
}

// With a copy of the resource bundle in which one thing is wrong.
class AgeGateBadLayoutTest : public AgeGateTest {
 protected:
  AgeGateBadLayoutTest() {
    fs::copy(QV_COMMONS_RESOURCES "/QV_Commons_iOS.bundle", bundle());
    setResourceDirectory(bundle().parent_path());
  }

  void setResourceDirectory(const fs::path& directory) {
    DesktopSettings other = settings();
    other.resourceDirectory = directory;
    restart(other);
  }

  // What is said of the missing layout of the age gate.
  std::string missingAsSetTo(const fs::path& directory) const {
    return "the layout QV_AgeGateViewController.ui is missing. DesktopSettings::resourceDirectory "
           "is \"" +
           directory.string() + "\"; searched:\n  " + layout().string() + "\n";
  }

  fs::path bundle() const { return temporary_.filePath("QV_Commons_iOS.bundle").toStdString(); }
  fs::path layout() const { return bundle() / "QV_AgeGateViewController.ui"; }

  void replace(const std::string& old, const std::string& replacement) {
    std::ifstream in(layout());
    std::string text{std::istreambuf_iterator<char>(in), {}};
    const std::size_t place = text.find(old);
    ASSERT_NE(place, std::string::npos);
    std::ofstream(layout()) << text.replace(place, old.size(), replacement);
  }
  void setPolicyText(const std::string& html) {
    std::ifstream in(layout());
    std::string text{std::istreambuf_iterator<char>(in), {}};
    const std::size_t from = text.find("&lt;p align");
    const std::size_t to = text.find("&lt;/p&gt;");
    std::ofstream(layout()) << text.replace(from, to - from, "&lt;p&gt;" + html);
  }
};

using AgeGateBadLayoutDeathTest = AgeGateBadLayoutTest;

TEST_F(AgeGateBadLayoutDeathTest, StopsWithoutTheLayout) {
  fs::remove(layout());
  EXPECT_DEATH(startAgeGate(), missingAsSetTo(bundle().parent_path()));
}

TEST_F(AgeGateBadLayoutDeathTest, StopsWithoutTheBundle) {
  fs::remove_all(bundle());
  EXPECT_DEATH(startAgeGate(), missingAsSetTo(bundle().parent_path()));
}

TEST_F(AgeGateBadLayoutDeathTest, StopsWithoutTheLayoutInTheBundleThatTheHostNames) {
  fs::remove(layout());
  setResourceDirectory(bundle());
  EXPECT_DEATH(startAgeGate(), missingAsSetTo(bundle()));
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtALayoutThatMayNotBeRead) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
  fs::permissions(layout(), fs::perms::none);
  EXPECT_DEATH(startAgeGate(), "the layout .*QV_AgeGateViewController.ui: Permission denied");
}

TEST_F(AgeGateBadLayoutTest, FindsTheBundleByItsOwnNameToo) {
  for (const fs::path& named : {bundle(), bundle() / "", bundle().parent_path()}) {
    setResourceDirectory(named);
    const auto layout = QV_BundleFileHelper::getQVCommonsResourceBundle()->URLForResource(
        "QV_AgeGateViewController", "ui");
    EXPECT_EQ(layout.value_or("nowhere"), this->layout()) << named;
  }
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtALayoutThatIsCutOff) {
  fs::resize_file(layout(), 2000);
  EXPECT_DEATH(startAgeGate(), "the layout .*QV_AgeGateViewController.ui: .*line");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtALayoutOfAnotherVersion) {
  replace("<ui version=\"4.0\"", "<ui version=\"3.3\"");
  EXPECT_DEATH(startAgeGate(), "the layout .*QV_AgeGateViewController.ui: .*3.3");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtALayoutThatIsAFolder) {
  fs::remove(layout());
  fs::create_directory(layout());
  EXPECT_DEATH(startAgeGate(), "the layout .*QV_AgeGateViewController.ui: ");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtAClassThatNobodyKnows) {
  replace("class=\"WheelDatePicker\"", "class=\"CalendarOfMine\"");
  EXPECT_DEATH(startAgeGate(), "QV_AgeGateViewController.ui: unknown class CalendarOfMine");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtALayoutClassThatNobodyKnows) {
  replace("class=\"QVBoxLayout\"", "class=\"LayoutOfMine\"");
  EXPECT_DEATH(startAgeGate(), "QV_AgeGateViewController.ui: unknown layout LayoutOfMine");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsWithoutAnOutlet) {
  replace("name=\"subtitle\"", "name=\"subheading\"");
  EXPECT_DEATH(startAgeGate(),
               "QV_AgeGateViewController: the outlet \"subtitle\" is not connected");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtAnOutletOfAnotherClass) {
  replace("class=\"QLabel\" name=\"header\"", "class=\"QPushButton\" name=\"header\"");
  EXPECT_DEATH(startAgeGate(), "QV_AgeGateViewController: the outlet \"header\" is not connected");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtAnActionThatTheScreenDoesNotHave) {
  replace("onConfirmPressed:", "onConfirm:");
  EXPECT_DEATH(startAgeGate(), "QV_AgeGateViewController.ui: no action onConfirm:");
}

TEST_F(AgeGateBadLayoutDeathTest, StopsAtAPolicyTextOf32Units) {
  setPolicyText("Privacy Policy &amp;amp; Terms of Servic");
  EXPECT_DEATH(startAgeGate(), "QV_Commons fatal error: ");
}

TEST_F(AgeGateBadLayoutTest, CountsUTF16UnitsInATextOf33) {
  setPolicyText("\xF0\x9F\x98\x80 e\xCC\x81 Privacy Policy and the Term");  // 😀 and é of two
  startAgeGate();
  ASSERT_NE(gate(), nullptr);
  auto& tos = view<QTextBrowser>(*gate(), "tos");
  ASSERT_EQ(tos.toPlainText().length(), 33);
  QTextCursor cursor(tos.document());
  const auto linkAt = [&cursor](int unit) {
    cursor.setPosition(unit + 1);
    return cursor.charFormat().anchorHref();
  };
  EXPECT_EQ(linkAt(2), "0");
  EXPECT_EQ(linkAt(13), "0");
  EXPECT_EQ(linkAt(14), "");
  EXPECT_EQ(linkAt(16), "");
  EXPECT_EQ(linkAt(17), "1");
  EXPECT_EQ(linkAt(32), "1");
}

}  // namespace
}  // namespace qv_commons::desktop
