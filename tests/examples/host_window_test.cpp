// The host app's page at home for users who enlarge their texts.
#include "examples/desktop_host/host_window.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <gtest/gtest.h>

namespace host {
namespace {

const QLabel& labelOf(const QPushButton& row, const char* role) {
  for (const QLabel* label : row.findChildren<QLabel*>()) {
    if (label->property("role") == role) return *label;
  }
  throw std::logic_error("a label for each role");
}

void setTextSize(int pixels) {
  QFont font = QApplication::font();
  font.setPixelSize(pixels);
  QApplication::setFont(font);
}

TEST(HostWindow, FollowsTheUsersTextSizeAndClipsNothing) {
  for (const int scale : {1, 2}) {
    SCOPED_TRACE(scale);
    setTextSize(15 * scale);
    HostWindow window("Notes", false);
    const QPushButton& row = *window.addService(
        "mail", "Contact support", "An e-mail with the receipt and what support asks for", [] {});
    window.addService("rate", "Rate the app", "The store's page for reviews", [] {});
    window.resize(320, 568);
    window.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(labelOf(row, "rowTitle").font().pixelSize(), 17 * scale);
    EXPECT_EQ(labelOf(row, "hint").font().pixelSize(), 13 * scale);
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (!label->isVisible()) continue;
      const std::string text = label->text().toStdString();
      EXPECT_GE(label->height(), label->heightForWidth(label->width())) << text;
      EXPECT_LE(label->mapTo(&window, QPoint(label->width(), 0)).x(), window.width()) << text;
      for (const QString& word : label->text().split(' ')) {
        EXPECT_LE(label->fontMetrics().horizontalAdvance(word), label->width()) << text;
      }
    }
  }
}

}  // namespace
}  // namespace host

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  const QApplication application(count, arguments);
  return RUN_ALL_TESTS();
}
