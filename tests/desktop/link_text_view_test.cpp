// A text with links by itself: by mouse, by keys and as a screen reader has it.
#include "qv_commons/platform/desktop/link_text_view.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/platform/desktop/sheet_accessibility.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;

class LinkTextTest : public testing::Test {
 protected:
  LinkTextTest() {
    installAccessibility();
    view_.setHtml(
        "See <a href='a'>the <b>first</b></a>, and <a href='b'>second</a><a href='c'>third</a>.");
    view_.resize(400, 60);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  std::vector<std::string> words() {
    std::vector<std::string> words;
    for (const LinkTextView::Link& link : view_.links()) words.push_back(link.words.toStdString());
    return words;
  }
  // What was pressed since the last call.
  std::vector<std::string> pressed() {
    std::vector<std::string> targets;
    for (const QList<QVariant>& one : presses_)
      targets.push_back(one.at(0).toString().toStdString());
    presses_.clear();
    return targets;
  }
  void comeBy(Qt::FocusReason reason) {
    view_.clearFocus();
    view_.setFocus(reason);
  }
  void key(Qt::Key key) { QTest::keyClick(&view_, key); }
  void click(const QPoint& place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(view_.viewport(), button, {}, place);
  }
  QAccessibleInterface& accessible() { return *QAccessible::queryAccessibleInterface(&view_); }

  QWidget window_;
  LinkTextView view_{&window_};
  QSignalSpy presses_{&view_, &LinkTextView::linkPressed};
};

TEST_F(LinkTextTest, TakesNeighboursWithOneTargetForOneLink) {
  EXPECT_THAT(words(), ElementsAre("the first", "second", "third"));
  EXPECT_EQ(view_.links()[1].end, view_.links()[2].start);
}

TEST_F(LinkTextTest, FindsALinkByItsPlace) {
  for (int link = 0; link < 3; ++link)
    EXPECT_EQ(view_.linkAt(view_.linkPlace(link).center()), link);
  EXPECT_EQ(view_.linkAt(QPoint(2, 5)), LinkTextView::kNone);
}

TEST_F(LinkTextTest, IsEnteredAtTheEndThatTheFocusComesFrom) {
  comeBy(Qt::TabFocusReason);
  EXPECT_EQ(view_.focusedLink(), 0);
  comeBy(Qt::BacktabFocusReason);
  EXPECT_EQ(view_.focusedLink(), 2);
  comeBy(Qt::MouseFocusReason);
  EXPECT_EQ(view_.focusedLink(), LinkTextView::kNone);
}

TEST_F(LinkTextTest, GoesFromLinkToLinkAndNoFurther) {
  comeBy(Qt::TabFocusReason);
  key(Qt::Key_Tab);
  EXPECT_EQ(view_.focusedLink(), 1);
  key(Qt::Key_Backtab);
  EXPECT_EQ(view_.focusedLink(), 0);
  key(Qt::Key_Backtab);
  EXPECT_EQ(view_.focusedLink(), 0);
  view_.focusLink(2);
  key(Qt::Key_Tab);
  EXPECT_EQ(view_.focusedLink(), 2);
}

TEST_F(LinkTextTest, IsPressedByThreeKeysWhereALinkHasTheFocus) {
  view_.focusLink(1);
  for (const Qt::Key one : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) key(one);
  key(Qt::Key_B);
  EXPECT_THAT(pressed(), ElementsAre("b", "b", "b"));
  comeBy(Qt::MouseFocusReason);
  key(Qt::Key_Return);
  EXPECT_THAT(pressed(), ElementsAre());
}

TEST_F(LinkTextTest, IsPressedByTheLeftButtonOnALinkOrBesideIt) {
  const QRect first = view_.linkPlace(0);
  click(first.center());
  EXPECT_THAT(pressed(), ElementsAre("a"));
  click(first.center() - QPoint(0, first.height()));
  EXPECT_THAT(pressed(), ElementsAre("a"));
  click(first.center() + QPoint(0, first.height()), Qt::RightButton);
  EXPECT_THAT(pressed(), ElementsAre());
}

TEST_F(LinkTextTest, SelectsWithoutPressing) {
  const QPoint beside = view_.linkPlace(0).bottomLeft() + QPoint(-4, 4);
  QTest::mousePress(view_.viewport(), Qt::LeftButton, {}, QPoint(1, 4));
  QTest::mouseMove(view_.viewport(), beside);
  QTest::mouseRelease(view_.viewport(), Qt::LeftButton, {}, beside);
  EXPECT_TRUE(view_.textCursor().hasSelection());
  EXPECT_THAT(pressed(), ElementsAre());
}

TEST_F(LinkTextTest, ForgetsTheFocusedLinkWhereItIsGone) {
  view_.focusLink(2);
  view_.setHtml("Only <a href='a'>one</a>");
  EXPECT_EQ(view_.focusedLink(), LinkTextView::kNone);
  view_.focusLink(0);
  view_.setHtml("And <a href='b'>another</a>");
  EXPECT_EQ(view_.focusedLink(), 0);
  view_.setHtml("None");
  comeBy(Qt::TabFocusReason);
  EXPECT_EQ(view_.focusedLink(), LinkTextView::kNone);
}

TEST_F(LinkTextTest, IsReadOutWithItsLinks) {
  EXPECT_EQ(accessible().role(), QAccessible::StaticText);
  EXPECT_EQ(accessible().text(QAccessible::Name), "See the first, and secondthird.");
  EXPECT_EQ(accessible().text(QAccessible::Help), "");
  ASSERT_EQ(accessible().childCount(), 3);
  EXPECT_EQ(accessible().child(-1), nullptr);
  EXPECT_EQ(accessible().child(3), nullptr);
  QAccessibleInterface* second = accessible().child(1);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->text(QAccessible::Name), "second");
  EXPECT_EQ(second->text(QAccessible::Description), "");
  EXPECT_EQ(accessible().indexOfChild(second), 1);
  const QPoint middle = second->rect().center();
  EXPECT_EQ(accessible().childAt(middle.x(), middle.y()), second);
}

TEST_F(LinkTextTest, TellsAReaderWhatHasTheFocus) {
  comeBy(Qt::MouseFocusReason);
  EXPECT_TRUE(accessible().state().focused);
  EXPECT_EQ(accessible().focusChild(), nullptr);
  view_.focusLink(1);
  EXPECT_FALSE(accessible().state().focused);
  EXPECT_EQ(accessible().focusChild(), accessible().child(1));
  EXPECT_TRUE(accessible().child(1)->state().focused);
  EXPECT_FALSE(accessible().child(0)->state().focused);
  view_.clearFocus();
  EXPECT_FALSE(accessible().state().focused);
}

TEST_F(LinkTextTest, DoesWhatAReaderAsksForUnlessDisabled) {
  QAccessibleActionInterface* link = accessible().child(1)->actionInterface();
  ASSERT_NE(link, nullptr);
  link->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(view_.focusedLink(), 1);
  EXPECT_THAT(pressed(), ElementsAre());
  link->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(pressed(), ElementsAre("b"));
  view_.setEnabled(false);
  link->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_THAT(pressed(), ElementsAre());
}

}  // namespace
}  // namespace qv_commons::desktop
