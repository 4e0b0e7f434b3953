// The way to the painted screen: what is read, measured and painted on it, counted.
#include <QApplication>
#include <QDir>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <cerrno>
#include <gmock/gmock.h>
#include <sys/inotify.h>
#include <unistd.h>

#include "qv_commons/age_gate/age_gate_helper.h"
#include "qv_commons/platform/desktop/icu_calendar.h"
#include "qv_commons/platform/desktop/scrolled_column.h"
#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/desktop/widget_views.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::IsEmpty;
using testing::Not;

// Counts how often a file, or a folder, is opened.
class Opened {
 public:
  explicit Opened(const std::string& path) {
    EXPECT_GE(inotify_add_watch(queue_, path.c_str(), IN_OPEN), 0) << path;
  }
  ~Opened() { ::close(queue_); }
  Opened(const Opened&) = delete;
  Opened& operator=(const Opened&) = delete;

  // Since the last question. The events are all of one size: that of a file itself has no name.
  int times() const {
    int count = 0;
    alignas(inotify_event) char event[sizeof(inotify_event) + 256];
    while (::read(queue_, event, sizeof event) > 0) ++count;
    EXPECT_EQ(errno, EAGAIN);
    return count;
  }

 private:
  int queue_ = inotify_init1(IN_NONBLOCK);
};

// How often a sheet was painted.
class Paintings final : public QObject {
 public:
  Paintings() { QCoreApplication::instance()->installEventFilter(this); }
  int count = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    if (qobject_cast<Sheet*>(watched) != nullptr) ++count;
    return false;
  }
};

std::string layoutFile(const char* screen) {
  return std::string(QV_COMMONS_RESOURCES "/QV_Commons_iOS.bundle/") + screen + ".ui";
}

class PaintingTest : public AgeGateTest {
 protected:
  void start() {
    QV_AgeGateHelper::startAgeGateProcess(host_, 16, nullptr, nullptr, theme_, "", "");
    QCoreApplication::processEvents();
  }
};

TEST_F(PaintingTest, ReadsTheGatesLayoutOnceAndPaintsOnce) {
  const Opened layout(layoutFile("QV_AgeGateViewController"));
  const Paintings paintings;
  start();
  ASSERT_NE(gate(), nullptr);
  EXPECT_EQ(layout.times(), 1);
  EXPECT_EQ(paintings.count, 1);
}

TEST_F(PaintingTest, ReadsTheRefusalsLayoutOnceAndPaintsOnce) {
  platform_->userDefaults.setBool(true, "QV_AgeGate_Shown");
  platform_->userDefaults.setBool(true, "QV_AgeGate_Blocked");
  const Opened gateLayout(layoutFile("QV_AgeGateViewController"));
  const Opened layout(layoutFile("QV_AgeGateRefusedViewController"));
  const Paintings paintings;
  start();
  ASSERT_NE(refusal(), nullptr);
  EXPECT_EQ(gateLayout.times(), 0);
  EXPECT_EQ(layout.times(), 1);
  EXPECT_EQ(paintings.count, 1);
}

TEST_F(PaintingTest, LooksForNoPluginsOfFormEditors) {
  ASSERT_TRUE(QDir(temporary_.path()).mkpath("plugins/designer"));
  const QStringList before = QCoreApplication::libraryPaths();
  QCoreApplication::addLibraryPath(temporary_.filePath("plugins"));
  const QStringList folders = QCoreApplication::libraryPaths();
  const Opened designer(temporary_.filePath("plugins/designer").toStdString());
  start();
  EXPECT_NE(gate(), nullptr);
  EXPECT_EQ(designer.times(), 0);
  EXPECT_EQ(QCoreApplication::libraryPaths(), folders);
  QCoreApplication::setLibraryPaths(before);
}

TEST(WheelDatePickerPainting, LeavesTheWheelsAloneUntilItHasItsSize) {
  const IcuCalendar calendar({"en-US", "UTC"});
  WheelDatePicker picker(calendar);
  const QRect before = picker.wheels().back()->geometry();
  picker.setMaximumDate(kNow);
  picker.setDate(kNow);
  picker.setFont(QFont("Inter", 20));
  EXPECT_EQ(picker.wheels().back()->geometry(), before);
  picker.resize(350, 200);
  picker.show();
  EXPECT_EQ(picker.wheels().back()->height(), 200);
  const int left = picker.wheels().back()->x();
  picker.setFont(QFont("Inter", 14));
  EXPECT_NE(picker.wheels().back()->x(), left);
}

// A text that is higher where it is narrower, and notes the widths at which it was measured.
class MeasuredText final : public QWidget {
 public:
  MeasuredText() {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
  }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override {
    widths.push_back(width);
    return 40'000 / std::max(width, 1);
  }
  mutable std::vector<int> widths;
};

class ScrolledColumnPainting : public testing::Test {
 protected:
  ScrolledColumnPainting() {
    area_.setWidgetResizable(true);
    area_.setFrameShape(QFrame::NoFrame);
    auto* column = new ScrolledColumn;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text_);
    area_.setWidget(column);
  }

  void show(QSize size) {
    area_.resize(size);
    area_.show();
    QCoreApplication::processEvents();
  }

  QScrollArea area_;
  MeasuredText* text_ = new MeasuredText;
};

TEST_F(ScrolledColumnPainting, MeasuresItsTextsOnlyForTheWidthThatTheyGet) {
  text_->updateGeometry();
  text_->widths.clear();
  show({400, 300});
  EXPECT_EQ(text_->size(), QSize(400, 300));
  const int bar = area_.verticalScrollBar()->sizeHint().width();
  EXPECT_THAT(text_->widths, Not(IsEmpty()));
  EXPECT_THAT(text_->widths, Each(AnyOf(400, 400 - bar)));
}

TEST_F(ScrolledColumnPainting, HasTheHeightOfItsTextsEachTimeThatItIsShown) {
  for (const QSize size : {QSize(200, 100), QSize(90, 80), QSize(300, 60), QSize(300, 60)}) {
    show(size);
    const int width = size.width() - area_.verticalScrollBar()->sizeHint().width();
    EXPECT_EQ(text_->size(), QSize(width, 40'000 / width));
    EXPECT_EQ(area_.verticalScrollBar()->maximum(), text_->height() - size.height());
    area_.hide();
  }
}

TEST(LinkedTextPainting, IsLaidOutOnceForAllItsColours) {
  LinkTextView widget;
  widget.setPlainText("Privacy Policy & Terms of Service");
  LinkedTextView view(widget, nullptr, nullptr);
  int changes = 0;
  QObject::connect(widget.document(), &QTextDocument::contentsChange, [&] { ++changes; });
  view.addLinks({{"https://example.com/privacy", {0, 14}}, {"https://example.com/terms", {17, 16}}},
                {0, 0, 1, 1});
  EXPECT_EQ(changes, 1);
  view.setTextColor({1, 0, 0, 1});
  EXPECT_EQ(changes, 2);
  const auto colorAt = [&](int place) {
    QTextCursor cursor(widget.document());
    cursor.setPosition(place);
    return cursor.charFormat().foreground().color();
  };
  EXPECT_EQ(colorAt(1), QColor(Qt::blue));
  EXPECT_EQ(colorAt(16), QColor(Qt::red));
  EXPECT_EQ(colorAt(33), QColor(Qt::blue));
}

}  // namespace
}  // namespace qv_commons::desktop
