#include "qv_commons/platform/desktop/edited_text.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <gtest/gtest.h>
#include <random>

namespace qv_commons::desktop {
namespace {

// A text in a real text widget, as the composer has it.
class Edited {
 public:
  explicit Edited(const std::string& original) : text_(original) {
    widget_.setPlainText(text_.shown());
    QObject::connect(
        widget_.document(), &QTextDocument::contentsChange,
        [this](int position, int removed, int added) {
          QTextCursor cursor(widget_.document());
          cursor.setPosition(position);
          cursor.setPosition(std::min(position + added, widget_.document()->characterCount() - 1),
                             QTextCursor::KeepAnchor);
          text_.replace(static_cast<std::size_t>(position), static_cast<std::size_t>(removed),
                        cursor.selectedText().replace(QChar::ParagraphSeparator, QChar('\n')));
        });
  }

  // Selects `length` units at `position` and types over them.
  void type(int position, int length, const QString& typed) {
    QTextCursor cursor(widget_.document());
    cursor.setPosition(position);
    cursor.setPosition(position + length, QTextCursor::KeepAnchor);
    cursor.insertText(typed);
  }
  void undo() { widget_.undo(); }

  std::string bytes() {
    EXPECT_EQ(text_.shown(),
              widget_.document()->toRawText().replace(QChar::ParagraphSeparator, QChar('\n')));
    return text_.bytes();
  }

 private:
  QPlainTextEdit widget_;
  EditedText text_;
};

std::string edited(const std::string& original, int position, int length, const QString& typed) {
  Edited text(original);
  text.type(position, length, typed);
  return text.bytes();
}

TEST(EditedText, IsShownWithOneKindOfLineEnd) {
  EXPECT_EQ(EditedText("a\rb\r\nc\n").shown(), "a\nb\nc\n");
}

TEST(EditedText, ComesBackUnchangedWhereNothingWasEdited) {
  for (const std::string& original :
       {std::string(), std::string("\n"), std::string("a\rb\r\nc\nd\n\r"), std::string("a\0b\n", 4),
        std::string("no-break\u00a0space"), std::string("\ufeff"), std::string("\ufeff\r\n\ufeffa"),
        std::string("\u2028 \u2029 \ufdd0 \ufdd1 \ufffc \ufeff"),
        std::string("not \xff UTF-8 \xc3\n"), std::string("📮 a\u0308 \u200f\n"),
        std::string(1 << 20, 'x'), std::string(300000, '\r')}) {
    EXPECT_TRUE(Edited(original).bytes() == original) << original.substr(0, 40);
  }
}

TEST(EditedText, ChangesWhereItWasTouchedAlone) {
  EXPECT_EQ(edited("opening\n\n\rmeta\r\ndata\xff\r\n", 8, 0, "It broke."),
            "opening\nIt broke.\n\rmeta\r\ndata\xff\r\n");
  EXPECT_EQ(edited("first\r\nlast\r\n", 0, 5, "new"), "new\r\nlast\r\n");
  EXPECT_EQ(edited("first\r\nlast\r\n", 5, 0, "!"), "first!\r\nlast\r\n");
  EXPECT_EQ(edited("a\xff\xff b\r\n", 4, 0, "x"), "a\xff\xff xb\r\n");
  EXPECT_EQ(edited("\u20ac\U0001f4ee\r", 3, 0, "x"), "\u20ac\U0001f4eex\r");
}

TEST(EditedText, KeepsMarksOfByteOrder) {
  EXPECT_EQ(edited("\ufeff\r\n\ufeffa\r\n", 2, 0, "x"), "\ufeff\r\nx\ufeffa\r\n");
  EXPECT_EQ(edited("\ufeff\r\nb\xff\r\n", 1, 0, "x"), "\ufeffx\r\nb\xff\r\n");
}

TEST(EditedText, KeepsTheLinesBetweenTwoEdits) {
  Edited text("a\r\nb\rc\xff\r\nd");
  text.type(0, 0, "1");
  text.type(8, 0, "2");
  EXPECT_EQ(text.bytes(), "1a\r\nb\rc\xff\r\n2d");
  text.type(1, 1, "A");
  text.type(9, 0, "3\n");
  EXPECT_EQ(text.bytes(), "1A\r\nb\rc\xff\r\n23\nd");
}

TEST(EditedText, TakesLinesAway) {
  EXPECT_EQ(edited("a\r\nb\rc\n", 2, 2, ""), "a\r\nc\n");
  EXPECT_EQ(edited("a\r\nb\rc\n", 1, 5, ""), "a");
  EXPECT_EQ(edited("a\r\nb\rc\n", 0, 6, ""), "");
  EXPECT_EQ(edited("x\r\nx\r\nx", 1, 2, ""), "x\r\nx");
}

TEST(EditedText, AddsLinesAtTheEnd) {
  EXPECT_EQ(edited("a\rb", 3, 0, "\nc"), "a\rb\nc");
  EXPECT_EQ(edited("", 0, 0, "ü\n"), "ü\n");
}

TEST(EditedText, TakesBackWhatIsUndone) {
  Edited text("a\r\nb\xff\r\nc");
  text.type(1, 3, "");
  EXPECT_EQ(text.bytes(), "a\r\nc");
  text.undo();
  EXPECT_EQ(text.bytes(), "a\r\nb\xff\r\nc");
}

TEST(EditedText, NeverPartsACharacterOfTwoUnits) {
  EXPECT_EQ(edited("\U0001f600", 0, 2, QString::fromUtf8("\U0001f601")), "\U0001f601");
  EXPECT_EQ(edited("\U0001f600", 0, 2, QString::fromUtf8("\U0001fa00")), "\U0001fa00");
}

TEST(EditedText, StaysTrueUnderRandomEdits) {
  std::mt19937 random(1);
  const auto below = [&](int limit) {
    return static_cast<int>(random() % static_cast<unsigned>(limit));
  };
  for (int run = 0; run < 50; ++run) {
    Edited text("a\r\n\xff\r\U0001f4ee\n" + std::string(2500, 'x') + "\r\n\u2028end");
    int size = 2515;
    for (int edit = 0; edit < 20; ++edit) {
      const int position = below(size - 20);
      const int length = below(10);
      text.type(position, length, QString(below(5), 'y'));
      size -= 10;
      text.bytes();  // compares what is shown with the widget
    }
  }
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

// The parts of a long line are the widget's affair: no line end comes into the text by them.
TEST(EditedText, AddsNoLineEndsToAVeryLongLine) {
  EXPECT_EQ(edited(std::string(2500, 'x'), 0, 0, "new"), "new" + std::string(2500, 'x'));
  EXPECT_EQ(edited(std::string(2500, 'x'), 1500, 0, "y"),
            std::string(1499, 'x') + "y" + std::string(1001, 'x'));
  EXPECT_EQ(edited(std::string(2500, 'x'), 1000, 1, ""), std::string(2500, 'x'));
}

std::string manyLines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += "a line #\r\n";
  return text;
}

// However long the text is, a widget has as much to do.
TEST(EditedText, ShowsTheBeginningOfALongOne) {
  EXPECT_EQ(EditedText(manyLines(1'999)).hiddenBytes(), 0U);
  for (const int count : {2'001, 100'000, 1'000'000}) {
    const EditedText text(manyLines(count));
    EXPECT_EQ(text.size(), 2'000U * 9 - 1) << count;
    EXPECT_EQ(text.shown().count('\n'), 1'999) << count;
    EXPECT_EQ(text.hiddenBytes(), static_cast<std::size_t>(count) * 10 - (2'000 * 10 - 2)) << count;
  }
  const EditedText line(std::string(10'000'000, 'x'));
  EXPECT_EQ(line.shown().size(), 200'199);
  EXPECT_EQ(line.hiddenBytes(), 9'800'000U);
}

TEST(EditedText, KeepsWhatIsNotShown) {
  const std::string original = manyLines(20'000) + std::string(100, 'x') + "\xff\r";
  EXPECT_TRUE(Edited(original).bytes() == original);
  EXPECT_TRUE(edited(original, 0, 0, "new\n") == "new\n" + original);
  const int end = 2'000 * 9 - 1;
  EXPECT_TRUE(edited(original, end, 0, "!") ==
              manyLines(1'999) + "a line #!" + original.substr(19'998));
  EXPECT_TRUE(edited(original, 0, end, "") == original.substr(19'998));
}

}  // namespace
}  // namespace qv_commons::desktop
