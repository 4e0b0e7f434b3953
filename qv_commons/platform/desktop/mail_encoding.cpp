#include "qv_commons/platform/desktop/mail_encoding.h"

#include <algorithm>

#include "qv_commons/support/base64.h"

namespace qv_commons::desktop {
namespace {

constexpr std::size_t kLongestLine = 76;
constexpr std::size_t kBytesOfALine = 57;  // in base64
constexpr std::size_t kLinesOfAPiece = 1000;
constexpr std::string_view kFrom = "From ";

// RFC 2047 allows 75 characters with "=?UTF-8?B?" and "?=".
constexpr std::size_t kBytesOfAWord = 45;

bool standsForItself(char character) {
  return (character >= ' ' && character <= '~' && character != '=') || character == '\t';
}

void addEncoded(std::string& line, char character) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(character);
  line += '=';
  line += kDigits[byte / 16];
  line += kDigits[byte % 16];
}

// Without its end. A blank there would be lost on the way, and mailboxes mark a line that begins
// with "From ", be it one that is parted here.
void addLine(std::string& encoded, std::string_view line) {
  std::size_t start = encoded.size();
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool isLast = i + 1 == line.size();
    const auto isPlain = [&] {
      if (isLast && (line[i] == ' ' || line[i] == '\t')) return false;
      if (encoded.size() == start && line.substr(i).starts_with(kFrom)) return false;
      return standsForItself(line[i]);
    };
    const std::size_t length = encoded.size() - start + (isPlain() ? 1 : 3);
    if (length > kLongestLine - (isLast ? 0 : 1)) {
      encoded += "=\n";
      start = encoded.size();
    }
    if (isPlain()) {
      encoded += line[i];
    } else {
      addEncoded(encoded, line[i]);
    }
  }
}

// The length of the longest start of `text` that has at most `longest` bytes and ends between two
// characters.
std::size_t lengthOfWord(std::string_view text, std::size_t longest) {
  if (text.size() <= longest) return text.size();
  std::size_t length = longest;
  while (length > longest - 4 && (text[length] & '\xc0') == '\x80') --length;
  return length;
}

bool isCarriedAsItStands(std::string_view text) {
  constexpr std::size_t kLongest = 60;  // longer ones are folded, and blanks may change there
  return text.size() <= kLongest && !text.starts_with(' ') && !text.ends_with(' ') &&
         text.find("=?") == std::string_view::npos && text.find("  ") == std::string_view::npos &&
         std::all_of(text.begin(), text.end(),
                     [](char character) { return character >= ' ' && character <= '~'; });
}

}  // namespace

std::string quotedPrintable(std::string_view text) {
  std::string encoded;
  encoded.reserve(text.size() + text.size() / 16);
  for (;;) {
    const std::size_t end = text.find('\n');
    addLine(encoded, text.substr(0, end));
    if (end == std::string_view::npos) return encoded;
    encoded += '\n';
    text.remove_prefix(end + 1);
  }
}

bool writeBase64Lines(std::string_view bytes, const std::function<bool(std::string_view)>& sink) {
  while (!bytes.empty()) {
    const std::string_view part = bytes.substr(0, kLinesOfAPiece * kBytesOfALine);
    bytes.remove_prefix(part.size());
    const std::string encoded = base64Encoded(part);
    std::string piece;
    piece.reserve(encoded.size() + kLinesOfAPiece);
    for (std::size_t start = 0; start < encoded.size(); start += kLongestLine) {
      piece.append(encoded, start, kLongestLine).append("\n");
    }
    if (!sink(piece)) return false;
  }
  return true;
}

std::string headerText(std::string_view text) {
  if (isCarriedAsItStands(text)) return std::string(text);
  std::string words;
  while (!text.empty()) {
    const std::size_t length = lengthOfWord(text, kBytesOfAWord);
    words += (words.empty() ? "=?UTF-8?B?" : "\n =?UTF-8?B?") +
             base64Encoded(text.substr(0, length)) + "?=";
    text.remove_prefix(length);
  }
  return words;
}

}  // namespace qv_commons::desktop
