#include "qv_commons/platform/desktop/edited_text.h"

#include <QPlainTextEdit>
#include <gtest/gtest.h>

namespace qv_commons::desktop {
namespace {

// What comes back when nothing was edited, through a real text widget.
std::string through(const std::string& original) {
  const EditedText text(original);
  QPlainTextEdit widget;
  widget.setPlainText(text.shown());
  return text.bytesOf(
      widget.document()->toRawText().replace(QChar::ParagraphSeparator, QChar('\n')));
}

TEST(EditedText, IsShownWithOneKindOfLineEnd) {
  EXPECT_EQ(EditedText("a\rb\r\nc\n").shown(), "a\nb\nc\n");
}

TEST(EditedText, ComesBackUnchangedWhereNothingWasEdited) {
  for (const std::string& original :
       {std::string(), std::string("\n"), std::string("a\rb\r\nc\nd\n\r"), std::string("a\0b\n", 4),
        std::string("no-break\u00a0space"),
        std::string("\u2028 \u2029 \ufdd0 \ufdd1 \ufffc \ufeff"),
        std::string("not \xff UTF-8 \xc3\n"), std::string("📮 a\u0308 \u200f\n"),
        std::string(1 << 20, 'x'), std::string(300000, '\r')}) {
    EXPECT_TRUE(through(original) == original) << original.substr(0, 40);
  }
}

TEST(EditedText, KeepsTheBytesOfLinesThatWereLeftAlone) {
  const EditedText text("opening\n\n\rmeta\r\ndata\xff\r\n");
  EXPECT_EQ(text.bytesOf("opening\nIt broke.\n\nmeta\ndata\ufffd\n"),
            "opening\nIt broke.\n\rmeta\r\ndata\xff\r\n");
}

TEST(EditedText, TakesLinesAway) {
  const EditedText text("a\r\nb\rc\n");
  EXPECT_EQ(text.bytesOf("a\nc\n"), "a\r\nc\n");
  EXPECT_EQ(text.bytesOf("a"), "a");
  EXPECT_EQ(text.bytesOf(""), "");
}

TEST(EditedText, AddsLinesAtTheEnd) {
  EXPECT_EQ(EditedText("a\rb").bytesOf("a\nb\nc"), "a\rb\nc");
  EXPECT_EQ(EditedText("").bytesOf("ü\n"), "ü\n");
}

TEST(EditedText, CountsARepeatedLineOnce) {
  EXPECT_EQ(EditedText("x\r\nx\r\nx").bytesOf("x\nx"), "x\r\nx");
  EXPECT_EQ(EditedText("x\r\nx").bytesOf("x\nx\nx"), "x\r\nx\nx");
}

TEST(EditedText, ShowsAVeryLongLineAsSeveral) {
  const QString shown = EditedText(std::string(2500, 'x')).shown();
  EXPECT_EQ(shown, QString(1000, 'x') + "\n" + QString(1000, 'x') + "\n" + QString(500, 'x'));
}

TEST(EditedText, PartsAVeryLongLineAtABlankOrBetweenCharacters) {
  const std::string words = std::string(990, 'x') + " " + std::string(900, 'y');
  EXPECT_EQ(EditedText(words).shown(), QString(990, 'x') + " \n" + QString(900, 'y'));
  std::string letters;
  for (int i = 0; i < 1000; ++i) letters += "€";
  EXPECT_EQ(EditedText(letters).shown().split('\n').front(), QString(333, QChar(0x20ac)));
}

TEST(EditedText, KeepsTheRestOfAVeryLongLineThatWasEdited) {
  const EditedText text(std::string(2500, 'x'));
  const QString piece(1000, 'x');
  EXPECT_EQ(text.bytesOf("new\n" + piece + "\n" + piece + "\n" + QString(500, 'x')),
            "new\n" + std::string(2500, 'x'));
}

}  // namespace
}  // namespace qv_commons::desktop
