// The age gate on its real screens, driven as a user does.
#include <QAccessible>
#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <functional>
#include <gmock/gmock.h>
#include <optional>
#include <utility>
#include <vector>

#include "qv_commons/age_gate/age_gate_helper.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Where the character of that place is shown.
QPoint placeOf(QTextBrowser& view, int character) {
  QTextCursor cursor(view.document());
  cursor.setPosition(character);
  const QPoint left = view.cursorRect(cursor).center();
  cursor.setPosition(character + 1);
  return (left + view.cursorRect(cursor).center()) / 2;
}

// What a question's answer is at the moment at which the view of that name is first shown.
class WhenShown final : public QObject {
 public:
  WhenShown(QString view, std::function<bool()> question)
      : view_(std::move(view)), question_(std::move(question)) {
    QCoreApplication::instance()->installEventFilter(this);
  }
  std::optional<bool> answer() const { return answer_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && watched->objectName() == view_ && !answer_) {
      answer_ = question_();
    }
    return false;
  }

 private:
  QString view_;
  std::function<bool()> question_;
  std::optional<bool> answer_;
};

TEST_F(AgeGateTest, AsksOverTheHostsWindowAndWaitsForTheFirstChange) {
  startAgeGate();
  ASSERT_NE(gate(), nullptr);
  EXPECT_EQ(gate()->geometry(), window_->rect());
  EXPECT_EQ(view<WheelDatePicker>(*gate(), "datePicker").date(), kNow);
  auto& button = view<QPushButton>(*gate(), "confirmBtn");
  EXPECT_FALSE(button.isEnabled());
  confirm();
  EXPECT_EQ(completions_, 0);
  EXPECT_NE(gate(), nullptr);

  press(*gate(), Qt::Key_Up);
  EXPECT_TRUE(button.isEnabled());
  press(*gate(), Qt::Key_Down);
  EXPECT_TRUE(button.isEnabled());
  EXPECT_EQ(view<WheelDatePicker>(*gate(), "datePicker").date(), kNow);
}

TEST_F(AgeGateTest, LetsAUserWhoIsOldEnoughOnAtOnceAndNeverAsksAgain) {
  startAgeGate(18);
  pickYear(*gate(), "2008");
  confirm();
  EXPECT_EQ(completions_, 1);
  EXPECT_EQ(gate(), nullptr);
  EXPECT_EQ(refusal(), nullptr);
  EXPECT_EQ(outcomeOfRestart(), "allowed");
  EXPECT_EQ(outcomeOfRestart(), "allowed");
}

TEST_F(AgeGateTest, RefusesAUserWhoLacksADayNowAndAtEveryLaterStart) {
  startAgeGate(18);
  pickYear(*gate(), "2008");
  click(wheel(*gate(), DateField::day));
  press(*gate(), Qt::Key_Down);  // 21 November 2008: 18 tomorrow
  confirm();
  EXPECT_EQ(completions_, 0);
  EXPECT_EQ(gate(), nullptr);
  ASSERT_NE(refusal(), nullptr);
  EXPECT_EQ(view<QLabel>(*refusal(), "header").accessibleName(),
            "We’re sorry, Notes isn’t available to you");
  EXPECT_EQ(outcomeOfRestart(), "refused");
  EXPECT_EQ(outcomeOfRestart(), "refused");
}

TEST_F(AgeGateTest, StaysWhateverTheUserDoesToLeave) {
  startAgeGate();
  press(*gate(), Qt::Key_Escape);
  ASSERT_NE(gate(), nullptr);
  pickYear(*gate(), "2020");
  confirm();
  press(*refusal(), Qt::Key_Escape);
  ASSERT_NE(refusal(), nullptr);
}

TEST_F(AgeGateTest, IsAnsweredByKeyboardAlone) {
  startAgeGate();
  for (const char* part : {"12", "31", "1990"}) {
    type(*gate(), part);
    press(*gate(), Qt::Key_Tab);
  }
  EXPECT_EQ(view<WheelDatePicker>(*gate(), "datePicker").date(), instantAt(662657400));
  press(*gate(), Qt::Key_Return);
  EXPECT_EQ(gate(), nullptr);
  EXPECT_EQ(completions_, 1);
}

TEST_F(AgeGateTest, ComesUpWithAWindowThatIsShownLater) {
  window_->hide();
  startAgeGate();
  window_->show();
  ASSERT_NE(gate(), nullptr);
  EXPECT_EQ(gate()->geometry(), window_->rect());
  EXPECT_TRUE(gate()->isAncestorOf(window_->focusWidget()));
}

TEST_F(AgeGateTest, LetsTheHostCloseItsWindowAndIsThereAgainWithIt) {
  startAgeGate();
  EXPECT_TRUE(window_->close());
  EXPECT_EQ(gate(), nullptr);
  window_->show();
  EXPECT_NE(gate(), nullptr);
  EXPECT_EQ(outcomeOfRestart(), "asked");
}

TEST_F(AgeGateTest, GoesWithTheHostsWindow) {
  startAgeGate();
  const std::weak_ptr<ViewController> shown = host_->presentedViewController()->retained();
  host_.reset();
  window_.reset();
  EXPECT_TRUE(QTest::qWaitFor([&shown] { return shown.expired(); }));
}

// A message box that the host shows when it is told, and in whose time all that waits is done.
TEST_F(AgeGateTest, MayBeDismissedByItsContactHandlerBeforeANestedEventLoop) {
  startAgeGate();
  pickYear(*gate(), "2020");
  confirm();
  bool isGone = false;
  onContact_ = [&](ViewController& screen) {
    const std::weak_ptr<ViewController> shown = screen.retained();
    screen.dismissViewController(true, nullptr);
    QEventLoop box;
    QTimer::singleShot(20, &box, &QEventLoop::quit);
    box.exec();
    isGone = refusal() == nullptr;
  };
  auto& contact = view<QTextBrowser>(*refusal(), "contact");
  click(*contact.viewport(), placeOf(contact, 45));
  QTest::qWait(50);
  EXPECT_TRUE(isGone);
}

TEST_F(AgeGateTest, CompletesOnceForTwoClicksInOneTurn) {
  startAgeGate();
  pickYear(*gate(), "1980");
  auto& button = view<QPushButton>(*gate(), "confirmBtn");
  button.click();
  button.click();
  EXPECT_TRUE(QTest::qWaitFor([this] { return completions_ > 0; }));
  QTest::qWait(20);
  EXPECT_EQ(completions_, 1);
}

TEST_F(AgeGateTest, DoesNothingOnAConfirmOfAScreenThatIsBeingDismissed) {
  startAgeGate();
  pickYear(*gate(), "1980");
  view<QPushButton>(*gate(), "confirmBtn").click();
  host_->dismissViewController(true, nullptr);
  QTest::qWait(1);
  EXPECT_EQ(completions_, 0);
  EXPECT_EQ(outcomeOfRestart(), "asked");
}

// The natural one line, in which nobody keeps the host's controller.
TEST_F(AgeGateTest, RefusesOverAHostThatNobodyKeeps) {
  host_.reset();
  const auto start = [this] {
    QV_AgeGateHelper::startAgeGateProcess(desktop_->viewController(*window_), 16, nullptr, nullptr,
                                          theme_, "", "");
    QTest::qWait(1);
  };
  start();
  ASSERT_NE(gate(), nullptr);
  pickYear(*gate(), "2020");
  confirm();
  EXPECT_NE(refusal(), nullptr);
  restart();
  host_.reset();
  start();
  EXPECT_NE(refusal(), nullptr);
}

TEST_F(AgeGateTest, CanBeLeftBelowSystemVersion13AndAsksAgain) {
  DesktopSettings old = settings();
  old.systemVersion = 12;
  restart(old);
  startAgeGate();
  press(*gate(), Qt::Key_Escape);
  EXPECT_EQ(gate(), nullptr);
  EXPECT_EQ(outcomeOfRestart(), "asked");
}

TEST_F(AgeGateTest, AsksForNothingBeyondAYearFromNow) {
  startAgeGate();
  click(wheel(*gate(), DateField::year));
  press(*gate(), Qt::Key_End);
  EXPECT_EQ(wheel(*gate(), DateField::year).chosenText(), "2027");
  click(wheel(*gate(), DateField::month));
  press(*gate(), Qt::Key_End);
  EXPECT_EQ(wheel(*gate(), DateField::month).chosenText(), "November");
  click(wheel(*gate(), DateField::day));
  press(*gate(), Qt::Key_End);
  EXPECT_EQ(view<WheelDatePicker>(*gate(), "datePicker").date(),
            kNow + Instant::duration(365 * 86400));
}

TEST_F(AgeGateTest, TakesAFutureDateForTheMinimum0) {
  startAgeGate(0);
  pickYear(*gate(), "2027");
  clock_.instant += Instant::duration(1);  // the user takes a moment
  confirm();
  EXPECT_EQ(completions_, 1);
}

TEST_F(AgeGateTest, WearsTheColoursOfTheTheme) {
  const auto color = [](const Color& one) {
    return QColor::fromRgbF(static_cast<float>(one.red), static_cast<float>(one.green),
                            static_cast<float>(one.blue))
        .rgb();
  };
  theme_ = std::make_shared<QV_AgeGateColorTheme>(Color{.1, .2, .3, 1}, Color{.9, .8, .1, 1},
                                                  Color{.2, 0, .4, 1}, Color{1, .9, .8, 1},
                                                  Color{.4, .9, .4, 1});
  startAgeGate();
  const auto& button = view<QPushButton>(*gate(), "confirmBtn");
  const auto inkOf = [](const QWidget& widget, QPalette::ColorRole role) {
    return widget.palette().color(role).rgb();
  };
  EXPECT_EQ(inkOf(view<QLabel>(*gate(), "header"), QPalette::WindowText), color({1, .9, .8, 1}));
  EXPECT_EQ(inkOf(view<QLabel>(*gate(), "subtitle"), QPalette::WindowText), color({1, .9, .8, 1}));
  EXPECT_EQ(inkOf(button, QPalette::ButtonText), color({.4, .9, .4, 1}));
  press(*gate(), Qt::Key_Up);
  EXPECT_EQ(inkOf(button, QPalette::ButtonText), color({.2, 0, .4, 1}));
  const QImage picture = gate()->grab().toImage();
  EXPECT_EQ(picture.pixel(20, 5), color({.1, .2, .3, 1}));
  EXPECT_EQ(picture.pixel(button.mapTo(gate(), QPoint(12, 12))), color({.9, .8, .1, 1}));
  auto& tos = view<QTextBrowser>(*gate(), "tos");
  QTextCursor cursor(tos.document());
  const auto colorAt = [&cursor](int character) {
    cursor.setPosition(character + 1);
    return cursor.charFormat().foreground().color().rgb();
  };
  EXPECT_EQ(colorAt(13), color({.4, .9, .4, 1}));
  EXPECT_EQ(colorAt(14), color({1, .9, .8, 1}));
  EXPECT_EQ(colorAt(17), color({.4, .9, .4, 1}));
  EXPECT_EQ(inkOf(wheel(*gate(), DateField::year), QPalette::WindowText), QColor(Qt::white).rgb());
}

TEST_F(AgeGateTest, OpensThePolicyLinksWithTheSystem) {
  startAgeGate();
  auto& tos = view<QTextBrowser>(*gate(), "tos");
  click(*tos.viewport(), placeOf(tos, 0));
  click(*tos.viewport(), placeOf(tos, 13));
  click(*tos.viewport(), placeOf(tos, 17));
  click(*tos.viewport(), placeOf(tos, 32));
  EXPECT_THAT(opened_.links,
              ElementsAre("https://example.com/privacy", "https://example.com/privacy",
                          "https://example.com/terms", "https://example.com/terms"));
}

TEST_F(AgeGateTest, OpensThePolicyLinksByKeyboard) {
  startAgeGate();
  auto& tos = view<QTextBrowser>(*gate(), "tos");
  for (int tabs = 0; tabs < 10 && !tos.hasFocus(); ++tabs) press(*gate(), Qt::Key_Tab);
  ASSERT_TRUE(tos.hasFocus());
  press(*gate(), Qt::Key_Return);
  press(*gate(), Qt::Key_Tab);
  press(*gate(), Qt::Key_Return);
  EXPECT_THAT(opened_.links,
              ElementsAre("https://example.com/privacy", "https://example.com/terms"));
}

TEST_F(AgeGateTest, TakesATapNextToALinkForATapOnIt) {
  startAgeGate();
  auto& tos = view<QTextBrowser>(*gate(), "tos");
  QTextCursor start(tos.document());
  click(*tos.viewport(), tos.cursorRect(start).center() - QPoint(8, 0));
  EXPECT_THAT(opened_.links, ElementsAre("https://example.com/privacy"));
}

TEST_F(AgeGateTest, KeepsLinksThatAreNoURLsAndOpensNothing) {
  for (const std::string& link : {std::string(), std::string("not a URL"),
                                  std::string(1'000'000, 'x'), std::string("\xff\xfe")}) {
    privacyLink_ = link;
    restart();
    startAgeGate();
    auto& tos = view<QTextBrowser>(*gate(), "tos");
    click(*tos.viewport(), placeOf(tos, 3));
    EXPECT_THAT(opened_.links, IsEmpty());
    EXPECT_EQ(tos.toPlainText(), "Privacy Policy & Terms of Service");
  }
}

TEST_F(AgeGateTest, OpensALinkOfAMegabyteAsItIs) {
  privacyLink_ = "https://example.com/" + std::string(1'000'000, 'x');
  startAgeGate();
  auto& tos = view<QTextBrowser>(*gate(), "tos");
  click(*tos.viewport(), placeOf(tos, 3));
  EXPECT_THAT(opened_.links, ElementsAre(privacyLink_));
}

TEST_F(AgeGateTest, CallsTheHostForEachTapOnTheContactLinkAndNothingElse) {
  startAgeGate();
  pickYear(*gate(), "2020");
  confirm();
  auto& contact = view<QTextBrowser>(*refusal(), "contact");
  click(*contact.viewport(), placeOf(contact, 38));
  click(*contact.viewport(), placeOf(contact, 59));
  ASSERT_EQ(contacts_.size(), 2U);
  EXPECT_EQ(contacts_[0], host_->presentedViewController());
  click(*contact.viewport(), placeOf(contact, 2));
  EXPECT_EQ(contacts_.size(), 2U);
  EXPECT_THAT(opened_.links, IsEmpty());
}

TEST_F(AgeGateTest, LetsTheHostPresentOverTheRefusalFromTheContactLink) {
  startAgeGate();
  pickYear(*gate(), "2020");
  confirm();
  auto& contact = view<QTextBrowser>(*refusal(), "contact");
  click(*contact.viewport(), placeOf(contact, 45));
  QWidget help;
  const auto screen = desktop_->viewController(help);
  contacts_.at(0)->presentViewController(screen, true, nullptr);
  QTest::qWait(1);
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(contacts_.at(0)->presentedViewController(), screen.get());
  screen->dismissViewController(true, nullptr);
  QTest::qWait(1);
  EXPECT_FALSE(help.isVisible());
  EXPECT_NE(refusal(), nullptr);
}

// Whatever ends the app then.
TEST_F(AgeGateTest, RemembersTheRefusalBeforeItIsSeen) {
  startAgeGate();
  pickYear(*gate(), "2020");
  WhenShown remembered("contact", [this] {
    const DesktopPlatform other(settings());
    return other.platform().userDefaults.boolForKey("QV_AgeGate_Blocked");
  });
  view<QPushButton>(*gate(), "confirmBtn").click();
  EXPECT_TRUE(QTest::qWaitFor([&remembered] { return remembered.answer().has_value(); }));
  EXPECT_EQ(remembered.answer(), true);
  ASSERT_NE(refusal(), nullptr);
}

TEST_F(AgeGateTest, GoesOnWhereNothingCanBeWritten) {
  DesktopSettings unwritable = settings();
  unwritable.dataDirectory = "/proc/no/such/folder";
  restart(unwritable);
  startAgeGate();
  pickYear(*gate(), "2020");
  confirm();
  EXPECT_NE(refusal(), nullptr);
  EXPECT_THAT(errors_, testing::Contains("The settings are in the memory alone until they can be "
                                         "written. The folder /proc/no can't be made: No such "
                                         "file or directory."));
  startAgeGate();
  EXPECT_EQ(completions_, 0);
}

TEST_F(AgeGateTest, TellsAScreenReaderWhatIsWhere) {
  startAgeGate();
  const auto accessible = [](QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget);
  };
  Wheel& month = wheel(*gate(), DateField::month);
  EXPECT_EQ(accessible(month)->role(), QAccessible::SpinBox);
  EXPECT_EQ(accessible(month)->text(QAccessible::Name), "month");
  EXPECT_EQ(accessible(month)->text(QAccessible::Value), "November");
  accessible(wheel(*gate(), DateField::year))->valueInterface()->setCurrentValue(1980);
  EXPECT_EQ(wheel(*gate(), DateField::year).chosenText(), "1980");
  EXPECT_TRUE(view<QPushButton>(*gate(), "confirmBtn").isEnabled());
  accessible(month)->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
  EXPECT_EQ(month.chosenText(), "October");
  EXPECT_EQ(accessible(month)->text(QAccessible::Description), "");
  accessible(month)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_EQ(month.chosenText(), "October");
  EXPECT_TRUE(month.hasFocus());
  EXPECT_EQ(accessible(view<WheelDatePicker>(*gate(), "datePicker"))->text(QAccessible::Name),
            "Date of birth");
  EXPECT_EQ(accessible(view<QWidget>(*gate(), "header"))->text(QAccessible::Name),
            "What’s your date of birth?");
}

}  // namespace
}  // namespace qv_commons::desktop
