// The date picker by itself, turned in every way there is.
#include "qv_commons/platform/desktop/wheel.h"

#include <QDateTime>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "qv_commons/platform/desktop/wheel_date_picker.h"

namespace qv_commons::desktop {
namespace {

Instant at(const char* text) {
  return instantAt(
      static_cast<double>(QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch()));
}

class WheelTest : public testing::Test {
 protected:
  explicit WheelTest(const char* locale = "en-US")
      : calendar_({locale, "UTC"}), picker_(calendar_) {
    picker_.resize(320, picker_.sizeHint().height());
    picker_.setMaximumDate(at("2027-11-20T15:30:00Z"));
    picker_.setDate(at("2026-11-20T15:30:00Z"));
    picker_.show();
    picker_.activateWindow();
    QTest::qWait(1);
  }

  Wheel& wheel(DateField field) {
    for (Wheel* wheel : picker_.wheels()) {
      if (wheel->field() == field) return *wheel;
    }
    throw std::logic_error("a wheel for each field");
  }
  std::vector<std::string> texts() {
    std::vector<std::string> texts;
    for (Wheel* wheel : picker_.wheels()) texts.push_back(wheel->chosenText().toStdString());
    return texts;
  }
  void press(Qt::Key key) { QTest::keyClick(picker_.windowHandle(), key); }
  // From the first wheel on, by Tab.
  void typeDate(const std::vector<const char*>& parts) {
    picker_.wheels().front()->setFocus();
    for (const char* part : parts) {
      for (; *part != '\0'; ++part) QTest::keyClick(picker_.windowHandle(), *part);
      press(Qt::Key_Tab);
    }
  }
  QPoint middleOf(DateField field) {
    Wheel& one = wheel(field);
    return one.mapTo(&picker_, one.rect().center());
  }
  void scroll(DateField field, int delta) {
    const QPointF place = middleOf(field);
    QWheelEvent event(place, picker_.mapToGlobal(place), {}, {0, delta}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&wheel(field), &event);
  }
  void drag(DateField field, int distance) {
    QWindow* window = picker_.windowHandle();
    const QPoint from = middleOf(field);
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 10; ++step) {
      QTest::mouseMove(window, from + QPoint(0, distance * step / 10));
      QTest::qWait(1);
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(0, distance));
  }

  IcuCalendar calendar_;
  WheelDatePicker picker_;
  QSignalSpy changes_{&picker_, &WheelDatePicker::dateChanged};
};

using testing::ElementsAre;

TEST_F(WheelTest, ShowsWhatItIsSetToAndSaysNothingOfIt) {
  picker_.setDate(at("2000-02-29T08:00:00Z"));
  EXPECT_THAT(texts(), ElementsAre("February", "29", "2000"));
  EXPECT_EQ(picker_.date(), at("2000-02-29T08:00:00Z"));
  EXPECT_EQ(changes_.count(), 0);
}

TEST_F(WheelTest, KeepsADateToTheFractionUntilTheUserTurnsIt) {
  picker_.setDate(instantAt(1795188600.123456));
  EXPECT_EQ(picker_.date(), instantAt(1795188600.123456));
}

TEST_F(WheelTest, TurnsByTheKeysAndKeepsTheTimeOfDay) {
  wheel(DateField::month).setFocus();
  press(Qt::Key_Up);
  EXPECT_EQ(picker_.date(), at("2026-10-20T15:30:00Z"));
  press(Qt::Key_Home);
  EXPECT_EQ(picker_.date(), at("2026-01-20T15:30:00Z"));
  press(Qt::Key_PageDown);
  EXPECT_EQ(picker_.date(), at("2026-06-20T15:30:00Z"));
  press(Qt::Key_PageUp);
  press(Qt::Key_End);
  EXPECT_EQ(picker_.date(), at("2026-12-20T15:30:00Z"));
  press(Qt::Key_Down);  // at the end already
  EXPECT_EQ(picker_.date(), at("2026-12-20T15:30:00Z"));
  EXPECT_EQ(changes_.count(), 5);
}

TEST_F(WheelTest, MovesFromWheelToWheelByLeftAndRight) {
  wheel(DateField::month).setFocus();
  press(Qt::Key_Right);
  EXPECT_TRUE(wheel(DateField::day).hasFocus());
  press(Qt::Key_Right);
  EXPECT_TRUE(wheel(DateField::year).hasFocus());
  press(Qt::Key_Left);
  EXPECT_TRUE(wheel(DateField::day).hasFocus());
}

TEST_F(WheelTest, TakesTypedNumbers) {
  wheel(DateField::year).setFocus();
  QTest::keyClicks(&wheel(DateField::year), "1907");
  EXPECT_EQ(picker_.date(), at("1907-11-20T15:30:00Z"));
  wheel(DateField::month).setFocus();
  QTest::keyClicks(&wheel(DateField::month), "12");
  EXPECT_THAT(texts(), ElementsAre("December", "20", "1907"));
  wheel(DateField::day).setFocus();
  QTest::keyClicks(&wheel(DateField::day), "0");  // there is none
  EXPECT_THAT(texts(), ElementsAre("December", "20", "1907"));
}

TEST_F(WheelTest, ReachesEveryBirthYear) {
  Wheel& years = wheel(DateField::year);
  years.setFocus();
  for (int year = 1880; year <= 2026; ++year) {
    years.turnToNumber(year);
    ASSERT_EQ(years.chosenText(), QString::number(year));
  }
}

TEST_F(WheelTest, TurnsARowForANotchOfTheMouseWheelAndAddsUpSmallerSteps) {
  scroll(DateField::day, -120);
  EXPECT_EQ(picker_.date(), at("2026-11-21T15:30:00Z"));
  scroll(DateField::day, 240);
  EXPECT_EQ(picker_.date(), at("2026-11-19T15:30:00Z"));
  for (int step = 0; step < 3; ++step) scroll(DateField::day, -40);
  EXPECT_EQ(picker_.date(), at("2026-11-20T15:30:00Z"));
}

TEST_F(WheelTest, SnapsToTheNearestRowAfterADrag) {
  const int row = Wheel::rowHeightFor(wheel(DateField::day).font());
  drag(DateField::day, -2 * row - row / 3);
  EXPECT_EQ(picker_.date(), at("2026-11-22T15:30:00Z"));
  drag(DateField::day, 3 * row + row / 3);
  EXPECT_EQ(picker_.date(), at("2026-11-19T15:30:00Z"));
  EXPECT_EQ(changes_.count(), 2);
}

TEST_F(WheelTest, TurnsToTheRowThatIsTapped) {
  const QPoint above = middleOf(DateField::day) - QPoint(0, 50);
  QTest::mouseClick(picker_.windowHandle(), Qt::LeftButton, {}, above);
  EXPECT_EQ(picker_.date(), at("2026-11-19T15:30:00Z"));
  QTest::mouseClick(picker_.windowHandle(), Qt::LeftButton, {}, middleOf(DateField::day));
  EXPECT_EQ(changes_.count(), 1);
}

TEST_F(WheelTest, TakesALittleDragForATap) {
  const QPoint from =
      middleOf(DateField::day) + QPoint(0, Wheel::rowHeightFor(wheel(DateField::day).font()));
  QTest::mousePress(picker_.windowHandle(), Qt::LeftButton, {}, from);
  QTest::mouseMove(picker_.windowHandle(), from + QPoint(0, 2));
  QTest::mouseRelease(picker_.windowHandle(), Qt::LeftButton, {}, from + QPoint(0, 2));
  EXPECT_THAT(texts(), ElementsAre("November", "21", "2026"));
}

TEST_F(WheelTest, IsNotTurnedByOtherButtonsOrByPassingOver) {
  QWindow* window = picker_.windowHandle();
  const QPoint below = middleOf(DateField::day) + QPoint(0, 40);
  QTest::mousePress(window, Qt::RightButton, {}, middleOf(DateField::day));
  QTest::mouseMove(window, below);
  QTest::mouseRelease(window, Qt::RightButton, {}, below);
  QTest::mouseMove(window, below);
  QTest::mouseClick(window, Qt::RightButton, {}, below);
  QTest::mousePress(window, Qt::LeftButton, {}, below);
  QTest::mouseRelease(window, Qt::RightButton, {}, below);
  EXPECT_EQ(changes_.count(), 0);
  QTest::mouseRelease(window, Qt::LeftButton, {}, below);
  EXPECT_EQ(changes_.count(), 1);
}

TEST_F(WheelTest, HoldsTheMaximumHoweverFarItIsTurned) {
  drag(DateField::year, -2000);
  EXPECT_EQ(picker_.date(), at("2027-11-20T15:30:00Z"));
  drag(DateField::month, -2000);
  drag(DateField::day, -2000);
  EXPECT_EQ(picker_.date(), at("2027-11-20T15:30:00Z"));
  EXPECT_EQ(changes_.count(), 1);
}

TEST_F(WheelTest, GoesBackToTheMaximumFromADayPastItInTheLastYear) {
  picker_.setDate(at("2026-12-31T15:30:00Z"));
  wheel(DateField::year).setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(picker_.date(), at("2027-11-20T15:30:00Z"));
  press(Qt::Key_Up);
  EXPECT_EQ(picker_.date(), at("2026-11-20T15:30:00Z"));
}

TEST_F(WheelTest, TakesADateBeyondTheMaximumForTheMaximum) {
  picker_.setDate(at("2030-01-01T00:00:00Z"));
  EXPECT_EQ(picker_.date(), at("2027-11-20T15:30:00Z"));
  picker_.setMaximumDate(std::nullopt);
  picker_.setDate(at("2030-01-01T00:00:00Z"));
  EXPECT_EQ(picker_.date(), at("2030-01-01T00:00:00Z"));
}

TEST_F(WheelTest, IgnoresWhatIsNoDate) {
  const Instant before = picker_.date();
  for (const double nonsense : {std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity(), -1e300}) {
    picker_.setDate(instantAt(nonsense));
    EXPECT_EQ(picker_.date(), before);
  }
  picker_.setMaximumDate(instantAt(std::numeric_limits<double>::quiet_NaN()));
  wheel(DateField::year).setFocus();
  press(Qt::Key_End);
  EXPECT_THAT(texts(), ElementsAre("November", "20", "2176"));
}

TEST_F(WheelTest, ShortensTheDayToTheMonth) {
  picker_.setDate(at("2024-01-31T12:00:00Z"));
  wheel(DateField::month).setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(picker_.date(), at("2024-02-29T12:00:00Z"));
  wheel(DateField::year).setFocus();
  press(Qt::Key_Up);
  EXPECT_EQ(picker_.date(), at("2023-02-28T12:00:00Z"));
}

TEST_F(WheelTest, TakesATypedDateAsItWasTyped) {
  typeDate({"12", "31", "1990"});
  EXPECT_THAT(texts(), ElementsAre("December", "31", "1990"));
  typeDate({"2", "29", "2000"});
  EXPECT_THAT(texts(), ElementsAre("February", "29", "2000"));
  typeDate({"2", "31", "2001"});
  EXPECT_THAT(texts(), ElementsAre("February", "28", "2001"));
}

TEST_F(WheelTest, ForgetsWhatWasTypedOnceAWheelIsTurned) {
  typeDate({"2", "31", "2001"});
  wheel(DateField::month).setFocus();
  press(Qt::Key_Down);
  EXPECT_THAT(texts(), ElementsAre("March", "28", "2001"));
}

TEST(DateWheels, HaveTheOrderInWhichTheLocaleWritesDates) {
  const auto order = [](const char* locale) {
    return DateWheels(IcuCalendar({locale, "UTC"})).order();
  };
  constexpr DateField kDay = DateField::day;
  constexpr DateField kMonth = DateField::month;
  constexpr DateField kYear = DateField::year;
  EXPECT_THAT(order("en-US"), ElementsAre(kMonth, kDay, kYear));
  EXPECT_THAT(order("de-DE"), ElementsAre(kDay, kMonth, kYear));
  EXPECT_THAT(order("ja-JP"), ElementsAre(kYear, kMonth, kDay));
  EXPECT_THAT(order("hu-HU"), ElementsAre(kYear, kMonth, kDay));
  // The long date of that calendar has the month first there.
  EXPECT_THAT(order("en-AU-u-ca-japanese"), ElementsAre(kDay, kMonth, kYear));
  EXPECT_THAT(order("th-TH-u-ca-buddhist"), ElementsAre(kDay, kMonth, kYear));
}

TEST(DateWheels, AreNamedInTheLocalesLanguage) {
  const IcuCalendar calendar({"de-DE", "UTC"});
  const DateWheels wheels(calendar);
  EXPECT_EQ(wheels.name(DateField::day), "Tag");
  EXPECT_EQ(wheels.name(DateField::month), "Monat");
  EXPECT_EQ(wheels.name(DateField::year), "Jahr");
}

TEST_F(WheelTest, TakesASmallerFontWhereTheWheelsWouldNotFit) {
  QFont large = picker_.font();
  large.setPixelSize(14);
  picker_.setFont(large);
  const auto pixels = [&] { return QFontInfo(wheel(DateField::day).font()).pixelSize(); };
  const auto total = [&] {
    int sum = 0;
    for (const Wheel* one : picker_.wheels()) sum += one->width();
    return sum;
  };
  picker_.resize(600, picker_.height());
  EXPECT_EQ(pixels(), 14);
  int steps = 0;
  for (int width = 250, last = 14; pixels() > 10; --width) {
    ASSERT_GT(width, 0);
    picker_.resize(width, picker_.height());
    EXPECT_LE(pixels(), last);
    if (pixels() < last) ++steps;
    last = pixels();
    const bool fits = total() <= width;
    EXPECT_TRUE(fits || last == 10) << width;
  }
  EXPECT_EQ(steps, 4);  // none is skipped
  picker_.resize(1, picker_.height());
  EXPECT_EQ(pixels(), 10);
  picker_.resize(600, picker_.height());
  EXPECT_EQ(pixels(), 14);
}

TEST_F(WheelTest, TellsItsLayoutThatItsFontHasChanged) {
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  auto* picker = new WheelDatePicker(calendar_);
  column->addWidget(picker);
  column->addStretch();
  window.resize(400, 900);
  QFont font = picker->font();
  font.setPixelSize(10);
  picker->setFont(font);
  window.show();
  const int before = picker->height();
  font.setPixelSize(30);
  picker->setFont(font);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  EXPECT_GT(picker->height(), before);
}

class BritishWheelTest : public WheelTest {
 protected:
  BritishWheelTest() : WheelTest("en-GB") {}
};

TEST_F(BritishWheelTest, HasTheDayFirst) {
  EXPECT_THAT(texts(), ElementsAre("20", "November", "2026"));
}

// Each day is shown as long as its month has it.
TEST_F(BritishWheelTest, KeepsATypedDayForTheMonthThatIsStillToCome) {
  typeDate({"31"});
  EXPECT_THAT(texts(), ElementsAre("30", "November", "2026"));
  typeDate({"31", "12"});
  EXPECT_THAT(texts(), ElementsAre("31", "December", "2026"));
  typeDate({"31", "12", "1990"});
  EXPECT_THAT(texts(), ElementsAre("31", "December", "1990"));
  typeDate({"29", "2"});
  EXPECT_THAT(texts(), ElementsAre("28", "February", "1990"));
  typeDate({"29", "2", "2000"});
  EXPECT_THAT(texts(), ElementsAre("29", "February", "2000"));
}

class HebrewWheelTest : public WheelTest {
 protected:
  HebrewWheelTest() : WheelTest("en-US-u-ca-hebrew") {}
};

TEST_F(HebrewWheelTest, KeepsTheMonthWhereALeapYearHasOneMore) {
  picker_.setDate(at("2024-02-20T12:00:00Z"));
  EXPECT_THAT(texts(), ElementsAre("11", "Adar I", "5784"));
  wheel(DateField::month).setFocus();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_THAT(texts(), ElementsAre("11", "Nisan", "5784"));
  wheel(DateField::year).setFocus();
  press(Qt::Key_Down);
  EXPECT_THAT(texts(), ElementsAre("11", "Nisan", "5785"));
}

class JapaneseWheelTest : public WheelTest {
 protected:
  JapaneseWheelTest() : WheelTest("en-US-u-ca-japanese") {}
};

TEST_F(JapaneseWheelTest, NamesTheErasOfItsYears) {
  picker_.setDate(at("1989-01-07T12:00:00Z"));
  EXPECT_EQ(texts().back(), "64 Shōwa");
  wheel(DateField::day).setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(texts().back(), "1 Heisei");
  EXPECT_EQ(picker_.date(), at("1989-01-08T12:00:00Z"));
}

class ArabicWheelTest : public WheelTest {
 protected:
  ArabicWheelTest() : WheelTest("ar-SA-u-ca-islamic-umalqura") {
    picker_.setLayoutDirection(Qt::RightToLeft);
    QTest::qWait(1);
  }
};

TEST_F(ArabicWheelTest, BeginsOnTheRightInItsOwnDigits) {
  EXPECT_THAT(texts(), ElementsAre("١٠", "جمادى الآخرة", "١٤٤٨"));
  EXPECT_GT(wheel(DateField::day).x(), wheel(DateField::month).x());
  EXPECT_GT(wheel(DateField::month).x(), wheel(DateField::year).x());
  wheel(DateField::day).setFocus();
  press(Qt::Key_Left);
  EXPECT_TRUE(wheel(DateField::month).hasFocus());
}

}  // namespace
}  // namespace qv_commons::desktop
