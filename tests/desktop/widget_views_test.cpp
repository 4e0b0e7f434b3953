// Widgets as the core's views have them.
#include "qv_commons/platform/desktop/widget_views.h"

#include <QLabel>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/wheel_date_picker.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LabelViews, TellNoTextFromAnEmptyOne) {
  QLabel label;
  LabelView view(label);
  EXPECT_EQ(view.text(), std::nullopt);
  view.setText("");
  EXPECT_EQ(view.text(), "");
  EXPECT_EQ(label.text(), "");
  view.setText("Fish & chips");
  EXPECT_EQ(view.text(), "Fish & chips");
  EXPECT_EQ(label.accessibleName(), "Fish & chips");
  EXPECT_TRUE(label.text().contains("Fish &amp; chips"));
}

TEST(LabelViews, BeginLinesWhereTheScreenDoes) {
  QLabel label;
  const auto shown = [&] {
    LabelView(label).setText("Text");
    return label.text();
  };
  label.setLayoutDirection(Qt::LeftToRight);
  EXPECT_TRUE(shown().contains("align='left'"));
  label.setLayoutDirection(Qt::RightToLeft);
  EXPECT_TRUE(shown().contains("align='right'"));
  label.setAlignment(Qt::AlignHCenter);
  EXPECT_TRUE(shown().contains("align='center'"));
}

TEST(PanelViews, HaveAPickerThatCanBeReadOnThem) {
  QWidget panel;
  const IcuCalendar calendar({"en-US", "UTC"});
  const WheelDatePicker picker(calendar, &panel);
  PanelView view(panel);
  const auto inkOn = [&](const Color& ground) {
    view.setBackgroundColor(ground);
    return picker.palette().color(QPalette::WindowText);
  };
  EXPECT_EQ(inkOn({0, 0, 0}), QColor(Qt::white));
  EXPECT_EQ(inkOn({1, 1, 1}), QColor(Qt::black));
  EXPECT_EQ(inkOn({0.03, 0.03, 0.2}), QColor(Qt::white));
  EXPECT_EQ(inkOn({1, 1, 1, 0.5}), QColor(Qt::white));  // as it was: it is seen through
}

class LinkedTextViews : public testing::Test {
 protected:
  LinkedTextViews() { text_.setText("Privacy and terms"); }

  LinkTextView text_;
  std::vector<std::string> opened_;
  LinkedTextView view_{text_, [this](std::string_view link) { opened_.emplace_back(link); },
                       [](const Completion& action) { action(); }};
};

TEST_F(LinkedTextViews, OpenTheirOwnLinksAlone) {
  view_.addLinks({{"https://a.example", {0, 7}}, {"no URL", {12, 5}}}, {0, 0, 1});
  for (const char* target : {"1", "0", "2", "-1", "https://a.example", ""}) {
    emit text_.linkPressed(target);
  }
  EXPECT_THAT(opened_, ElementsAre("no URL", "https://a.example"));
}

TEST_F(LinkedTextViews, KeepTheColourOfTheirLinks) {
  const auto colorAt = [&](int place) {
    QTextCursor cursor(text_.document());
    cursor.setPosition(place + 1);
    return cursor.charFormat().foreground().color();
  };
  view_.setTextColor({1, 0, 0});
  EXPECT_EQ(colorAt(0), QColor(Qt::red));
  view_.addLinks({{"https://a.example", {0, 7}}}, {0, 0, 1});
  view_.setTextColor({0, 1, 0});
  EXPECT_EQ(colorAt(0), QColor(Qt::blue));
  EXPECT_EQ(colorAt(8), QColor(Qt::green));
  EXPECT_THAT(opened_, IsEmpty());
}

}  // namespace
}  // namespace qv_commons::desktop
