// A label is laid out once for each question that its screen's layout asks.
#include "qv_commons/platform/desktop/text_label.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <gtest/gtest.h>

namespace qv_commons::desktop {
namespace {

class TextLabelTest : public testing::Test {
 protected:
  TextLabelTest() {
    label_.setWordWrap(true);
    label_.setTextFormat(Qt::RichText);
    label_.setText("<p>When were you born, and on which day of which month?</p>");
  }

  TextLabel label_;
};

TEST_F(TextLabelTest, IsLaidOutOnceForAWidth) {
  label_.heightForWidth(100);
  const auto* document = label_.findChild<QTextDocument*>();
  ASSERT_NE(document, nullptr);
  int layouts = 0;
  QObject::connect(document->documentLayout(), &QAbstractTextDocumentLayout::update, &label_,
                   [&layouts] { ++layouts; });
  label_.heightForWidth(100);
  EXPECT_EQ(layouts, 0);
  label_.heightForWidth(120);
  EXPECT_GT(layouts, 0);
}

TEST_F(TextLabelTest, AnswersForTheTextAndTheFontThatItHas) {
  const auto asAnother = [this](int width) {
    QLabel plain;
    plain.setWordWrap(true);
    plain.setTextFormat(Qt::RichText);
    plain.setText(label_.text());
    plain.setFont(label_.font());
    return plain.heightForWidth(width);
  };
  EXPECT_EQ(label_.heightForWidth(100), asAnother(100));
  EXPECT_EQ(label_.heightForWidth(200), asAnother(200));
  label_.setText("<p>When?</p>");
  EXPECT_EQ(label_.heightForWidth(200), asAnother(200));
  QFont large = label_.font();
  large.setPixelSize(60);
  label_.setFont(large);
  EXPECT_EQ(label_.heightForWidth(200), asAnother(200));
}

}  // namespace
}  // namespace qv_commons::desktop
