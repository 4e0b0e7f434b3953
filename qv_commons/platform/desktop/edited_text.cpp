#include "qv_commons/platform/desktop/edited_text.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

// Qt lays out a paragraph as a whole, in a time that grows with the square of its longest word.
constexpr std::size_t kLongestShownLine = 1000;

// What a text widget takes in within a frame or two.
constexpr std::size_t kMostShownLines = 2000;
constexpr std::size_t kMostShownBytes = 200'000;

// Where to part a line that is too long: after a blank, or at least between two characters.
std::size_t lengthOfPiece(std::string_view line) {
  const std::size_t blank = line.rfind(' ', kLongestShownLine - 1);
  if (blank != std::string_view::npos) return blank + 1;
  const auto continues = [&](std::size_t i) { return (line[i] & '\xc0') == '\x80'; };
  std::size_t length = kLongestShownLine;
  while (length > kLongestShownLine - 4 && continues(length)) --length;
  return length;
}

struct FirstLine {
  std::size_t length;
  std::optional<std::uint8_t> endBytes;  // std::nullopt at the text's end
};

FirstLine firstLine(std::string_view text) {
  const std::string_view start = text.substr(0, kLongestShownLine + 1);
  const std::size_t length = start.find_first_of("\r\n");
  if (length != std::string_view::npos) {
    return {length, text.substr(length).starts_with("\r\n") ? std::uint8_t{2} : std::uint8_t{1}};
  }
  if (start.size() == text.size()) return {text.size(), std::nullopt};
  return {lengthOfPiece(text), std::uint8_t{0}};
}

// Without the characters that Qt's documents take for ends of paragraphs and frames.
QString shownLine(std::string_view bytes) {
  QString shown = fromUtf8(bytes);
  for (const char16_t reserved : {u'\u2029', u'\ufdd0', u'\ufdd1'}) {
    shown.replace(QChar(reserved), QChar(QChar::ReplacementCharacter));
  }
  return shown;
}

// How many of the bytes give the first `units` units.
std::size_t bytesOfUnits(std::string_view bytes, std::size_t units) {
  const QString whole = fromUtf8(bytes);
  if (units >= static_cast<std::size_t>(whole.size())) return bytes.size();
  const auto count = static_cast<qsizetype>(units) +
                     (units > 0 && whole[static_cast<qsizetype>(units)].isLowSurrogate() ? 1 : 0);
  if (toUtf8(whole) == bytes) return toUtf8(whole.left(count)).size();
  // Not UTF-8: where both parts give what they give as a whole.
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const QString front = fromUtf8(bytes.substr(0, i));
    if (front.size() >= count && front + fromUtf8(bytes.substr(i)) == whole) return i;
  }
  return bytes.size();
}

}  // namespace

EditedText::EditedText(std::string original) : original_(std::move(original)) {
  std::size_t byte = 0;
  std::size_t unit = 0;
  for (;;) {
    const std::string_view rest = std::string_view(original_).substr(byte);
    const FirstLine line = firstLine(rest);
    const auto units = static_cast<std::size_t>(fromUtf8(rest.substr(0, line.length)).size());
    const bool isLast = !line.endBytes || lines_.size() + 1 == kMostShownLines ||
                        byte + line.length >= kMostShownBytes;
    const std::uint8_t endBytes = isLast ? std::uint8_t{0} : *line.endBytes;
    lines_.push_back({byte, unit, endBytes});
    byte += line.length + endBytes;
    unit += units + 1;
    if (!isLast) continue;
    lines_.push_back({byte, unit, 0});
    spans_.push_back({false, 0, unit - 1, {}});
    return;
  }
}

std::size_t EditedText::size() const {
  std::size_t size = 0;
  for (const Span& span : spans_) size += span.size();
  return size;
}

std::string_view EditedText::lineBytes(std::size_t line) const {
  const std::size_t end = lines_[line + 1].byte - lines_[line].endBytes;
  return std::string_view(original_).substr(lines_[line].byte, end - lines_[line].byte);
}

std::size_t EditedText::lineOfUnit(std::size_t unit) const {
  const auto after =
      std::upper_bound(lines_.begin(), lines_.end() - 1, unit,
                       [](std::size_t wanted, const Line& line) { return wanted < line.unit; });
  return static_cast<std::size_t>(after - lines_.begin()) - 1;
}

std::size_t EditedText::byteOfUnit(std::size_t unit) const {
  const std::size_t line = lineOfUnit(unit);
  return lines_[line].byte + bytesOfUnits(lineBytes(line), unit - lines_[line].unit);
}

QString EditedText::shownOriginal(std::size_t begin, std::size_t end) const {
  QString shown;
  for (std::size_t line = lineOfUnit(begin); begin < end; ++line) {
    const QString text = shownLine(lineBytes(line)) + '\n';
    const std::size_t first = begin - lines_[line].unit;
    const std::size_t last = std::min(end, lines_[line + 1].unit) - lines_[line].unit;
    shown +=
        QStringView(text).mid(static_cast<qsizetype>(first), static_cast<qsizetype>(last - first));
    begin += last - first;
  }
  return shown;
}

QString EditedText::shown(std::size_t begin, std::size_t end) const {
  QString shown;
  std::size_t start = 0;
  for (const Span& span : spans_) {
    const std::size_t from = std::clamp(begin, start, start + span.size()) - start;
    const std::size_t to = std::clamp(end, start, start + span.size()) - start;
    start += span.size();
    if (from == to) continue;
    shown += span.isTyped
                 ? span.typed.mid(static_cast<qsizetype>(from), static_cast<qsizetype>(to - from))
                 : shownOriginal(span.begin + from, span.begin + to);
  }
  return shown;
}

// The span that begins at `position` then.
std::size_t EditedText::splitAt(std::size_t position) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < spans_.size(); ++i) {
    if (start == position) return i;
    Span& span = spans_[i];
    if (position < start + span.size()) {
      Span rest = span;
      const std::size_t kept = position - start;
      span.end = rest.begin = span.begin + kept;
      span.typed.truncate(static_cast<qsizetype>(kept));
      rest.typed.remove(0, static_cast<qsizetype>(kept));
      spans_.insert(spans_.begin() + static_cast<std::ptrdiff_t>(i) + 1, std::move(rest));
      return i + 1;
    }
    start += span.size();
  }
  return spans_.size();
}

// What was taken out of the original and comes back, as an undo brings it, is the original again.
void EditedText::insert(std::size_t at, const QString& text) {
  if (at > 0 && spans_[at - 1].isTyped) {
    spans_[at - 1].typed += text;
    return;
  }
  const std::size_t end = lines_.back().unit - 1;
  const bool precedes = at == spans_.size() || !spans_[at].isTyped;
  const std::size_t from = at == 0 ? 0 : spans_[at - 1].end;
  const std::size_t to = at == spans_.size() ? end : spans_[at].begin;
  const auto size = static_cast<std::size_t>(text.size());
  const bool comesBack = precedes && from + size == to && shownOriginal(from, to) == text;
  const Span span = comesBack ? Span{false, from, to, {}} : Span{true, 0, 0, text};
  spans_.insert(spans_.begin() + static_cast<std::ptrdiff_t>(at), span);
}

void EditedText::replace(std::size_t position, std::size_t removed, const QString& inserted) {
  const QString before = shown(position, position + removed);
  const qsizetype shorter = std::min(before.size(), inserted.size());
  qsizetype head = 0;
  while (head < shorter && before[head] == inserted[head]) ++head;
  if (head > 0 && before[head - 1].isHighSurrogate()) --head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         before[before.size() - 1 - tail] == inserted[inserted.size() - 1 - tail]) {
    ++tail;
  }
  if (tail > 0 && before[before.size() - tail].isLowSurrogate()) --tail;

  const auto begin = position + static_cast<std::size_t>(head);
  const std::size_t first = splitAt(begin);
  const std::size_t last = splitAt(begin + static_cast<std::size_t>(before.size() - head - tail));
  spans_.erase(spans_.begin() + static_cast<std::ptrdiff_t>(first),
               spans_.begin() + static_cast<std::ptrdiff_t>(last));
  const QString typed = inserted.mid(head, inserted.size() - head - tail);
  if (!typed.isEmpty()) insert(first, typed);
}

std::string EditedText::bytes() const {
  std::string bytes;
  bytes.reserve(original_.size());
  for (const Span& span : spans_) {
    if (span.isTyped) {
      bytes += toUtf8(span.typed);
      continue;
    }
    const std::size_t begin = byteOfUnit(span.begin);
    bytes.append(original_, begin, byteOfUnit(span.end) - begin);
  }
  return bytes.append(original_, lines_.back().byte);
}

}  // namespace qv_commons::desktop
