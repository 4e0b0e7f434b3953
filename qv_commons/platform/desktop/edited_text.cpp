#include "qv_commons/platform/desktop/edited_text.h"

#include <QStringList>
#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

// Qt lays out a paragraph as a whole, in a time that grows with the square of its longest word.
constexpr std::size_t kLongestShownLine = 1000;

struct Line {
  std::string_view bytes;
  std::optional<std::string_view> end;  // "\n", "\r", "\r\n"; "" within a line that is too long
};

// Where to part a line that is too long: after a blank, or at least between two characters.
std::size_t lengthOfPiece(std::string_view line) {
  const std::size_t blank = line.rfind(' ', kLongestShownLine - 1);
  if (blank != std::string_view::npos) return blank + 1;
  const auto continues = [&](std::size_t i) { return (line[i] & '\xc0') == '\x80'; };
  std::size_t length = kLongestShownLine;
  while (length > kLongestShownLine - 4 && continues(length)) --length;
  return length;
}

Line firstLine(std::string_view text) {
  const std::string_view start = text.substr(0, kLongestShownLine + 1);
  const std::size_t length = start.find_first_of("\r\n");
  if (length != std::string_view::npos) {
    const std::size_t endLength = text.substr(length).starts_with("\r\n") ? 2 : 1;
    return {text.substr(0, length), text.substr(length, endLength)};
  }
  if (start.size() == text.size()) return {text, std::nullopt};
  return {text.substr(0, lengthOfPiece(text)), ""};
}

std::vector<Line> linesOf(std::string_view text) {
  std::vector<Line> lines;
  for (;;) {
    const Line& line = lines.emplace_back(firstLine(text));
    if (!line.end) return lines;
    text.remove_prefix(line.bytes.size() + line.end->size());
  }
}

// Without the characters that Qt's documents take for ends of paragraphs and frames.
QString shownLine(const Line& line) {
  QString shown = fromUtf8(line.bytes);
  for (const char16_t reserved : {u'\u2029', u'\ufdd0', u'\ufdd1'}) {
    shown.replace(QChar(reserved), QChar(QChar::ReplacementCharacter));
  }
  return shown;
}

}  // namespace

QString EditedText::shown() const {
  QStringList lines;
  for (const Line& line : linesOf(original_)) lines.append(shownLine(line));
  return lines.join('\n');
}

std::string EditedText::bytesOf(const QString& edited) const {
  const std::vector<Line> before = linesOf(original_);
  const QStringList after = edited.split('\n');
  const auto beforeCount = static_cast<qsizetype>(before.size());
  const auto lineBefore = [&](qsizetype i) { return before[static_cast<std::size_t>(i)]; };

  const qsizetype shorter = std::min(beforeCount, after.size());
  qsizetype head = 0;
  while (head < shorter && shownLine(lineBefore(head)) == after[head]) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         shownLine(lineBefore(beforeCount - 1 - tail)) == after[after.size() - 1 - tail]) {
    ++tail;
  }

  std::string bytes;
  for (qsizetype i = 0; i < after.size(); ++i) {
    std::optional<std::string_view> end;
    if (i < head || i >= after.size() - tail) {
      const Line line = lineBefore(i < head ? i : i - after.size() + beforeCount);
      bytes += line.bytes;
      end = line.end;
    } else {
      bytes += toUtf8(after[i]);
    }
    if (i + 1 < after.size()) bytes += end.value_or("\n");
  }
  return bytes;
}

}  // namespace qv_commons::desktop
