// Alerts as cards: keyboard, screen reader. What a tap does is in the conformance suite.
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <gmock/gmock.h>

#include "qv_commons/platform/desktop/sheet.h"

#include "tests/desktop/active_window.h"
#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AlertWindows : public testing::Test {
 protected:
  AlertWindows() {
    host_.resize(375, 667);
    host_.show();
    activate(host_);
  }

  void addAction(const std::string& title, AlertActionStyle style) {
    alert_->addAction(title, style, [this, title] { chosen_.push_back(title); });
  }

  void open() {
    screen_->presentViewController(alert_, true, nullptr);
    settle();
  }

  QWidget host_;
  DesktopPlatform desktop_{{}};
  std::shared_ptr<ViewController> screen_ = desktop_.viewController(host_);
  std::shared_ptr<AlertController> alert_ = desktop_.platform().viewControllers.makeAlertController(
      "Error", "Fish & chips <b>", AlertStyle::alert);
  std::vector<std::string> chosen_;
};

TEST_F(AlertWindows, ShowTheirTextsAsTheyStand) {
  addAction("Salt & vinegar", AlertActionStyle::standard);
  open();
  EXPECT_EQ(find<QLabel>(*alert_, "title").text(), "Error");
  EXPECT_EQ(find<QLabel>(*alert_, "message").text(), "Fish & chips <b>");
  EXPECT_EQ(find<QLabel>(*alert_, "message").textFormat(), Qt::PlainText);
  EXPECT_EQ(find<QPushButton>(*alert_, "action0").text(), "Salt && vinegar");
}

TEST_F(AlertWindows, AreNamedForScreenReaders) {
  addAction("OK", AlertActionStyle::standard);
  open();
  auto* window = QAccessible::queryAccessibleInterface(Sheet::topOf(host_));
  EXPECT_EQ(window->text(QAccessible::Name), "Error");
  EXPECT_EQ(window->text(QAccessible::Description), "Fish & chips <b>");
  EXPECT_EQ(window->role(), QAccessible::Dialog);
}

TEST_F(AlertWindows, AreAnsweredByReturn) {
  addAction("OK", AlertActionStyle::standard);
  open();
  press(*alert_, Qt::Key_Return);
  settle();
  EXPECT_THAT(chosen_, ElementsAre("OK"));
}

TEST_F(AlertWindows, AreAnsweredByTabAndSpace) {
  addAction("OK", AlertActionStyle::standard);
  addAction("More", AlertActionStyle::standard);
  open();
  press(*alert_, Qt::Key_Tab);
  press(*alert_, Qt::Key_Space);
  settle();
  EXPECT_THAT(chosen_, ElementsAre("More"));
}

TEST_F(AlertWindows, TakeEscapeForTheirOnlyButton) {
  addAction("OK", AlertActionStyle::standard);
  open();
  press(*alert_, Qt::Key_Escape);
  settle();
  EXPECT_THAT(chosen_, ElementsAre("OK"));
  EXPECT_FALSE(isOnScreen(*alert_));
}

TEST_F(AlertWindows, TakeEscapeForCancel) {
  addAction("Delete", AlertActionStyle::destructive);
  addAction("Keep", AlertActionStyle::cancel);
  open();
  press(*alert_, Qt::Key_Escape);
  settle();
  EXPECT_THAT(chosen_, ElementsAre("Keep"));
}

TEST_F(AlertWindows, StayWhereEscapeCouldMeanAnything) {
  addAction("Red", AlertActionStyle::standard);
  addAction("Green", AlertActionStyle::standard);
  open();
  press(*alert_, Qt::Key_Escape);
  settle();
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_TRUE(isOnScreen(*alert_));
}

TEST_F(AlertWindows, StandInTheMiddleOfTheHosts) {
  addAction("OK", AlertActionStyle::standard);
  open();
  const QWidget& card = windowOf(*alert_);
  const QPoint distance = card.mapTo(&host_, card.rect().center()) - host_.rect().center();
  EXPECT_LE(distance.manhattanLength(), 2);
  EXPECT_EQ(card.width(), 290);
}

}  // namespace
}  // namespace qv_commons::desktop
