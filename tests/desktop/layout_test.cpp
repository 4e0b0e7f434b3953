// Nothing is cut off, at any size of window and text, from left to right or from right to left;
// every text can be told from what it stands on.
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <cmath>

#include "qv_commons/platform/desktop/desktop_style.h"

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

struct Case {
  const char* name;
  QSize window;
  QSize panel;  // of the composer in it
  Qt::LayoutDirection direction;
  int fontPixels;

  friend void PrintTo(const Case& tried, std::ostream* out) { *out << tried.name; }
};

class Layout : public ComposerTest, public testing::WithParamInterface<Case> {
 protected:
  void SetUp() override {
    QApplication::setLayoutDirection(GetParam().direction);
    QFont font = fontBefore_;
    font.setPixelSize(GetParam().fontPixels);
    QApplication::setFont(font);
    host_.resize(GetParam().window);
  }
  void TearDown() override {
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(fontBefore_);
  }

  // Each widget has the room that its text needs, inside what it stands in.
  static void expectNothingCutOff(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      const bool isText = qobject_cast<const QLabel*>(widget) != nullptr ||
                          qobject_cast<const QPushButton*>(widget) != nullptr ||
                          qobject_cast<const QLineEdit*>(widget) != nullptr;
      if (!isText || !widget->isVisible()) continue;
      const std::string name = widget->objectName().toStdString();
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << name;
      EXPECT_GE(widget->height(), widget->hasHeightForWidth()
                                      ? widget->heightForWidth(widget->width())
                                      : widget->minimumSizeHint().height())
          << name;
      const QWidget& parent = *widget->parentWidget();
      EXPECT_TRUE(parent.rect().contains(widget->geometry())) << name;
      const QRect inWindow(widget->mapTo(&window, QPoint()), widget->size());
      EXPECT_GE(inWindow.left(), 0) << name;
      EXPECT_LE(inWindow.right(), window.width()) << name;
    }
  }

  // The page is as wide as what shows of it: a person scrolls up and down only.
  static void expectNoSidewaysScrolling(const QWidget& window) {
    const auto& area = *window.findChild<QScrollArea*>();
    EXPECT_LE(area.widget()->width(), area.viewport()->width());
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
  }

 private:
  QFont fontBefore_ = QApplication::font();
};

TEST_P(Layout, TheComposerCutsNothingOff) {
  open();
  ASSERT_EQ(windowOf(*composer_).size(), GetParam().panel);
  expectNothingCutOff(windowOf(*composer_));
  expectNoSidewaysScrolling(windowOf(*composer_));
}

TEST_P(Layout, TheComposerCutsNothingOffWhenItSaysWhyAMessageWasNotSent) {
  useMailProgram("head -c 5000 /dev/zero | tr '\\0' 'x' >&2; exit 65");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Not sent."));
  settle();
  ASSERT_EQ(windowOf(*composer_).size(), GetParam().panel);
  expectNothingCutOff(windowOf(*composer_));
  expectNoSidewaysScrolling(windowOf(*composer_));
}

TEST_P(Layout, TheComposersSendButtonIsAtTheEndOfTheLine) {
  open();
  const int send = find<QPushButton>(*composer_, "send").x();
  const int cancel = find<QPushButton>(*composer_, "cancel").x();
  EXPECT_EQ(send > cancel, GetParam().direction == Qt::LeftToRight);
}

TEST_P(Layout, AnAlertCutsNothingOff) {
  desktop_.emplace(settings_);
  screen_ = desktop_->viewController(host_);
  const auto alert = desktop_->platform().viewControllers.makeAlertController(
      "Error", "Please configure your email account in the Settings.", AlertStyle::alert);
  alert->addAction("OK", AlertActionStyle::standard, nullptr);
  screen_->presentViewController(alert, true, nullptr);
  settle();
  EXPECT_LE(windowOf(*alert).width(), GetParam().window.width());
  EXPECT_LE(windowOf(*alert).height(), GetParam().window.height());
  expectNothingCutOff(windowOf(*alert));
}

INSTANTIATE_TEST_SUITE_P(
    Windows, Layout,
    testing::Values(
        Case{"Phone", {375, 667}, {375, 667}, Qt::LeftToRight, 15},
        Case{"SmallPhone", {320, 568}, {320, 568}, Qt::LeftToRight, 15},
        Case{"SmallPhoneRightToLeft", {320, 568}, {320, 568}, Qt::RightToLeft, 15},
        Case{"SmallPhoneLargeText", {320, 568}, {320, 568}, Qt::LeftToRight, 30},
        Case{"SmallPhoneLargeTextRightToLeft", {320, 568}, {320, 568}, Qt::RightToLeft, 30},
        Case{"DesktopRightToLeft", {1024, 768}, {560, 720}, Qt::RightToLeft, 15}),
    [](const auto& tried) { return tried.param.name; });

TEST_P(Layout, TextsHaveTheirSizes) {
  open();
  const int scale = GetParam().fontPixels / 15;
  const std::pair<const char*, int> sizes[] = {{"title", 24},  {"to", 17},
                                               {"send", 17},   {"attachmentName", 15},
                                               {"notice", 15}, {"attachmentSize", 13}};
  for (const auto& [name, pixels] : sizes) {
    EXPECT_EQ(find<QWidget>(*composer_, name).font().pixelSize(), scale * pixels) << name;
  }
}

// https://www.w3.org/TR/WCAG21/#dfn-relative-luminance
double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double contrast(const QString& one, const QString& other) {
  const double a = luminance(QColor(one));
  const double b = luminance(QColor(other));
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Themes, TellEveryTextFromItsBackground) {
  ASSERT_NEAR(contrast("#000000", "#ffffff"), 21, 0.001);
  for (const UserInterfaceStyle style : {UserInterfaceStyle::light, UserInterfaceStyle::dark}) {
    const Theme theme = themeFor(style);
    for (const QString& text : {theme.text, theme.caption, theme.accent, theme.error}) {
      EXPECT_GE(contrast(text, theme.background), 4.5) << text.toStdString();
    }
    EXPECT_GE(contrast(theme.text, theme.field), 4.5);
    EXPECT_GE(contrast(theme.onAccent, theme.accent), 4.5);
  }
}

TEST(TextScale, IsNeverBelowOne) {
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPixelSize(9);
  QApplication::setFont(font);
  EXPECT_EQ(textScale(), 1);
  font.setPixelSize(30);
  QApplication::setFont(font);
  EXPECT_EQ(textScale(), 2);
  QApplication::setFont(before);
}

TEST(Themes, AreDarkWhereTheyShouldBe) {
  EXPECT_LT(luminance(QColor(themeFor(UserInterfaceStyle::dark).background)), 0.1);
  EXPECT_GT(luminance(QColor(themeFor(UserInterfaceStyle::light).background)), 0.9);
  EXPECT_GT(luminance(QColor(themeFor(UserInterfaceStyle::unspecified).background)), 0.9);
}

TEST(Breakable, PutsPlacesToBreakIntoLongWordsOnly) {
  EXPECT_EQ(breakable("ten letters"), "ten letters");
  EXPECT_EQ(breakable("abcdefghijklm"), QString("abcdefghij\u200bklm"));
  EXPECT_EQ(breakable("abcdefghi😀k"), QString("abcdefghi😀\u200bk"));
}

}  // namespace
}  // namespace qv_commons::desktop
