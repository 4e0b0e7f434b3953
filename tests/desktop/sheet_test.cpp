// A sheet over a host's window: what it covers, what it follows, and that all is as before when it
// is gone. Clicks and keys go to the window, as the system's do.
#include "qv_commons/platform/desktop/sheet.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include "qv_commons/platform/desktop/sheet_accessibility.h"
#include "qv_commons/platform/desktop/sheet_button.h"

#include "tests/desktop/active_window.h"
#include "tests/desktop/covered_window.h"

namespace qv_commons::desktop {
namespace {

class SheetTest : public testing::Test {
 protected:
  SheetTest() {
    installAccessibility();
    host_.show();
    activate(host_);
    host_.line->setFocus();
    host_.takeNotes();
  }

  // A line and two buttons.
  std::shared_ptr<QWidget> makeContent(const QString& title) {
    auto content = std::make_shared<QWidget>();
    content->setWindowTitle(title);
    auto* column = new QVBoxLayout(content.get());
    auto* line = new QLineEdit;
    auto* send = new SheetButton("Send", Qt::ALT | Qt::Key_S);
    send->setObjectName("send");
    column->addWidget(line);
    column->addWidget(send);
    column->addWidget(new SheetButton("Close"));
    QObject::connect(send, &QPushButton::clicked, [this] { ++sent_; });
    line->setFocus();
    return content;
  }
  Sheet& show(const QString& title = "Sheet") {
    return Sheet::show(&host_, makeContent(title), Sheet::Form::panel);
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(host_.windowHandle(), key, modifiers);
  }
  // Whether the application ends when it is told to.
  static bool quits() {
    constexpr int kRefused = 7;
    QTimer patience;
    QObject::connect(&patience, &QTimer::timeout, [] { QCoreApplication::exit(kRefused); });
    patience.start(20'000);
    QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    return QApplication::exec() != kRefused;
  }
  QPoint placeOf(const QWidget& widget) { return widget.mapTo(&host_, widget.rect().center()); }

  CoveredWindow host_;
  int sent_ = 0;
};

TEST_F(SheetTest, WithoutItTheHostIsReached) {
  press(Qt::Key_O, Qt::ControlModifier);
  press(Qt::Key_K, Qt::ControlModifier);
  QTest::mouseClick(host_.windowHandle(), Qt::LeftButton, {}, placeOf(*host_.button));
  const QStringList notes = host_.takeNotes();
  for (const char* what : {"action", "Ctrl+K", "button"}) EXPECT_TRUE(notes.contains(what)) << what;
}

TEST_F(SheetTest, KeepsThePointerFromTheHost) {
  const Sheet& sheet = show();
  QWindow* window = host_.windowHandle();
  for (const QPoint place : {QPoint(20, 10), placeOf(*host_.button), QPoint(20, 600)}) {
    QTest::mouseMove(window, place);
    QTest::mouseClick(window, Qt::LeftButton, {}, place);
    QTest::mouseClick(window, Qt::RightButton, {}, place);
    QTest::mouseDClick(window, Qt::LeftButton, {}, place);
    QWheelEvent wheel(place, window->mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(window, &wheel);
    QHelpEvent tip(QEvent::ToolTip, place, window->mapToGlobal(place));
    QCoreApplication::sendEvent(host_.childAt(place), &tip);
    QCoreApplication::sendEvent(host_.button, &tip);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, place, window->mapToGlobal(place));
    QCoreApplication::sendEvent(host_.line, &menu);
  }
  EXPECT_EQ(host_.takeNotes(), QStringList());
  EXPECT_TRUE(sheet.isAncestorOf(QApplication::focusWidget()));
}

// Touches, drags and questions about a widget come in events of their own kinds.
TEST_F(SheetTest, KeepsEveryOtherWayToReachForTheHostFromIt) {
  std::vector<QEvent::Type> reached;
  class Watch final : public QObject {
   public:
    Watch(std::vector<QEvent::Type>& types, QObject& watched) : types_(types) {
      watched.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
      types_.push_back(event->type());
      return true;
    }

   private:
    std::vector<QEvent::Type>& types_;
  } const watch(reached, *host_.button);
  const QMimeData data;
  const QPointF place(1, 1);
  const QPoint global = host_.button->mapToGlobal(QPoint(1, 1));
  const QPointingDevice* device = QPointingDevice::primaryPointingDevice();
  const auto use = [&] {
    const auto send = [&](QEvent&& event) { QCoreApplication::sendEvent(host_.button, &event); };
    reached.clear();
    send(QHelpEvent(QEvent::WhatsThis, place.toPoint(), global));
    send(QHelpEvent(QEvent::QueryWhatsThis, place.toPoint(), global));
    send(QStatusTipEvent("tip"));
    for (const QEvent::Type type :
         {QEvent::TabletMove, QEvent::TabletPress, QEvent::TabletRelease}) {
      send(QTabletEvent(type, device, place, global, 1, 0, 0, 0, 0, 0, {}, Qt::LeftButton,
                        Qt::LeftButton));
    }
    send(QNativeGestureEvent(Qt::ZoomNativeGesture, device, 2, place, place, global, 1, {}));
    send(QDragMoveEvent(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, {}));
    send(QDropEvent(place, Qt::CopyAction, &data, Qt::LeftButton, {}));
    return reached.size();
  };
  EXPECT_GE(use(), 7U);
  Sheet& sheet = show();
  EXPECT_EQ(use(), 0U);
  sheet.dismiss();
  EXPECT_GE(use(), 7U);
}

TEST_F(SheetTest, KeepsTheHostsFloatingPartsFromTheUser) {
  QDockWidget dock("Tools", &host_);
  auto* tool = new QPushButton("&Tool");
  int pressed = 0;
  QObject::connect(tool, &QPushButton::clicked, [&] { ++pressed; });
  dock.setWidget(tool);
  dock.setFloating(true);
  dock.show();
  const auto use = [&] {
    const QPoint place = tool->mapTo(&dock, tool->rect().center());
    QTest::mouseClick(dock.windowHandle(), Qt::LeftButton, {}, place);
    tool->setFocus();
    QTest::keyClick(dock.windowHandle(), Qt::Key_Space);
  };
  use();
  EXPECT_EQ(pressed, 2);
  Sheet& sheet = show();
  use();
  EXPECT_EQ(pressed, 2);
  QMessageBox question(QMessageBox::Question, "Question", "Of the host", QMessageBox::Ok, &host_);
  question.show();
  QTest::mouseClick(question.button(QMessageBox::Ok), Qt::LeftButton);
  EXPECT_FALSE(question.isVisible());
  sheet.dismiss();
  use();
  EXPECT_EQ(pressed, 4);
}

TEST_F(SheetTest, LetsGoOfAButtonThatIsHeldDownAndDoesNotClickIt) {
  QTest::mousePress(host_.windowHandle(), Qt::LeftButton, {}, placeOf(*host_.button));
  ASSERT_TRUE(host_.button->isDown());
  show();
  QTest::mouseRelease(host_.windowHandle(), Qt::LeftButton, {}, placeOf(*host_.button));
  EXPECT_FALSE(host_.button->isDown());
  EXPECT_FALSE(host_.takeNotes().contains("button"));
}

TEST_F(SheetTest, EndsAnOpenMenu) {
  press(Qt::Key_F, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
  Sheet& sheet = show();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(sheet.isAncestorOf(QApplication::focusWidget()));
  sheet.dismiss();
  EXPECT_EQ(QApplication::focusWidget(), host_.line);
}

TEST_F(SheetTest, KeepsDragsFromTheHost) {
  show();
  QMimeData data;
  data.setText("dragged");
  for (QWidget* widget : {static_cast<QWidget*>(&host_), static_cast<QWidget*>(host_.line)}) {
    QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &enter);
    EXPECT_FALSE(enter.isAccepted());
    QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(widget, &drop);
  }
  EXPECT_EQ(host_.takeNotes(), QStringList());
  EXPECT_EQ(host_.line->text(), "text of the host");
}

TEST_F(SheetTest, KeepsKeysAndShortcutsFromTheHostAndHasItsOwn) {
  Sheet& sheet = show();
  press(Qt::Key_O, Qt::ControlModifier);
  press(Qt::Key_K, Qt::ControlModifier);
  QTest::sendKeyEvent(QTest::Click, host_.windowHandle(), Qt::Key_F, QString("f"), Qt::AltModifier);
  press(Qt::Key_Alt);
  press(Qt::Key_F10);
  EXPECT_EQ(sheet.findChild<QLineEdit*>()->text(), "");
  sheet.findChild<QWidget*>("send")->setFocus();
  press(Qt::Key_D);  // a button takes no letters: the host's shortcut would be next
  EXPECT_EQ(host_.takeNotes(), QStringList());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  press(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return sent_ == 1; }));
  int left = 0;
  QObject::connect(&sheet, &Sheet::left, [&left] { ++left; });
  press(Qt::Key_Escape);  // which the host knows too
  EXPECT_EQ(left, 1);
  EXPECT_EQ(host_.takeNotes(), QStringList());
}

TEST_F(SheetTest, KeepsTheSecondKeyOfASequenceFromTheHost) {
  press(Qt::Key_L, Qt::ControlModifier);
  host_.takeNotes();
  show();
  press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(host_.takeNotes(), QStringList());
}

TEST_F(SheetTest, IsPressedByReturnAndKeepsTabInside) {
  Sheet& sheet = show();
  QSet<QWidget*> seen;
  for (int turn = 0; turn < 12; ++turn) {
    press(turn < 6 ? Qt::Key_Tab : Qt::Key_Backtab, turn < 6 ? Qt::NoModifier : Qt::ShiftModifier);
    EXPECT_TRUE(sheet.isAncestorOf(QApplication::focusWidget()));
    seen += QApplication::focusWidget();
  }
  EXPECT_EQ(seen.size(), 3);
  sheet.findChild<QWidget*>("send")->setFocus();
  press(Qt::Key_Return);
  EXPECT_EQ(sent_, 1);
}

TEST_F(SheetTest, ShowsTheFocusOnlyOnceTheKeyboardIsInUse) {
  Sheet& sheet = show();
  QWidget& send = *sheet.findChild<QWidget*>("send");
  send.setFocus();
  EXPECT_FALSE(Sheet::showsFocus(send));
  press(Qt::Key_Tab);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(Sheet::showsFocus(send));
  QTest::mouseClick(host_.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_TRUE(send.hasFocus());
  EXPECT_FALSE(Sheet::showsFocus(send));
}

TEST_F(SheetTest, GivesTheFocusBackAsItWas) {
  host_.line->setSelection(2, 4);
  Sheet& below = show("Below");
  below.findChild<QWidget*>("send")->setFocus();
  Sheet& above = show("Above");
  above.dismiss();
  EXPECT_EQ(QApplication::focusWidget(), below.findChild<QWidget*>("send"));
  below.dismiss();
  EXPECT_EQ(QApplication::focusWidget(), host_.line);
  EXPECT_EQ(host_.line->selectedText(), "xt o");
}

TEST_F(SheetTest, GivesTheFocusToWhereTheHostMovedIt) {
  Sheet& sheet = show();
  const QWidget* had = QApplication::focusWidget();
  host_.button->setFocus();
  EXPECT_EQ(QApplication::focusWidget(), had);
  sheet.dismiss();
  EXPECT_EQ(QApplication::focusWidget(), host_.button);
}

TEST_F(SheetTest, MayGoBeforeOneThatIsAboveIt) {
  Sheet& below = show("Below");
  Sheet& above = show("Above");
  below.dismiss();
  EXPECT_EQ(Sheet::topOf(host_), &above);
  above.dismiss();
  EXPECT_EQ(Sheet::topOf(host_), nullptr);
  EXPECT_EQ(QApplication::focusWidget(), host_.line);
}

TEST_F(SheetTest, CoversAllOfTheWindowAtEverySize) {
  const Sheet& sheet = show();
  const QWidget& panel = *static_cast<QWidget*>(sheet.children().constFirst());
  host_.setMinimumSize(1, 1);
  for (const QSize size : {QSize(320, 568), QSize(599, 700)}) {
    host_.resize(size);
    EXPECT_EQ(sheet.size(), size);
    EXPECT_EQ(panel.geometry(), QRect(QPoint(), size));
  }
  host_.resize(1600, 1000);
  EXPECT_EQ(sheet.size(), QSize(1600, 1000));
  EXPECT_EQ(panel.geometry(), QRect(520, 140, 560, 720));
}

TEST_F(SheetTest, ScrollsWhereThereIsNoRoomForItsContent) {
  const Sheet& sheet = show();
  host_.setMinimumSize(1, 1);
  host_.resize(200, 200);
  const auto* area = sheet.findChild<QScrollArea*>();
  EXPECT_EQ(area->widget()->size(), QSize(320, 320));
  EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
  EXPECT_GT(area->horizontalScrollBar()->maximum(), 0);
}

TEST_F(SheetTest, StaysAboveWhatTheHostAddsAndRaises) {
  const Sheet& sheet = show();
  auto* late = new QPushButton("Late", &host_);
  late->setGeometry(0, 0, 100, 100);
  late->show();
  EXPECT_EQ(host_.childAt(50, 50), &sheet);
  late->raise();
  EXPECT_EQ(host_.childAt(50, 50), &sheet);
}

TEST_F(SheetTest, IsNoPaneOfASplitter) {
  QSplitter splitter;
  splitter.addWidget(new QLineEdit);
  splitter.resize(700, 300);
  splitter.show();
  const Sheet* const sheet = &Sheet::show(&splitter, makeContent("Sheet"), Sheet::Form::panel);
  EXPECT_EQ(splitter.count(), 1);
  QTest::qWait(1);
  EXPECT_EQ(sheet->size(), splitter.size());
}

TEST_F(SheetTest, LetsTheWindowBeClosedAndTheApplicationQuit) {
  const QPointer<Sheet> sheet = &show();
  EXPECT_TRUE(host_.close());
  EXPECT_TRUE(host_.takeNotes().contains("close"));
  host_.show();
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_TRUE(quits());
}

TEST_F(SheetTest, GoesWithItsWindowAndLeavesTheContentToItsOwner) {
  auto window = std::make_unique<QWidget>();
  window->show();
  const std::shared_ptr<QWidget> content = makeContent("Sheet");
  const QPointer<Sheet> sheet = &Sheet::show(window.get(), content, Sheet::Form::panel);
  window.reset();
  EXPECT_EQ(sheet, nullptr);
  EXPECT_EQ(content->parent(), nullptr);
  EXPECT_FALSE(content->isVisible());
}

TEST_F(SheetTest, WithoutAWindowHasOneOfItsOwnThatDoesNotRefuseToQuit) {
  Sheet& sheet = Sheet::show(nullptr, makeContent("Sheet"), Sheet::Form::panel);
  EXPECT_TRUE(sheet.isWindow());
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&sheet));
  EXPECT_TRUE(quits());
  sheet.dismiss();
}

// Whatever it says: sizes, colours, states, even properties; to the last pixel.
TEST_F(SheetTest, IsNotReachedByTheHostsLook) {
  const auto pictureOf = [](const Sheet& sheet) {
    QTest::qWait(1);
    return static_cast<QWidget*>(sheet.children().constFirst())->grab().toImage();
  };
  const auto dressHost = [this] {
    host_.setStyleSheet(
        "* { color: red; background: yellow; font-size: 40px; padding: 20px; border: 3px solid "
        "green } QPushButton { min-height: 90px; qproperty-text: \"changed\" }");
    host_.setFont(QFont("serif", 30));
    host_.setPalette(Qt::darkRed);
  };
  const QImage plainHost = host_.button->grab().toImage();
  Sheet& sheet = show();
  const QImage expected = pictureOf(sheet);
  dressHost();
  EXPECT_EQ(pictureOf(sheet), expected);
  sheet.dismiss();
  EXPECT_NE(host_.button->grab().toImage(), plainHost);
  EXPECT_EQ(pictureOf(show()), expected);
}

}  // namespace
}  // namespace qv_commons::desktop
