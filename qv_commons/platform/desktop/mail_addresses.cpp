#include "qv_commons/platform/desktop/mail_addresses.h"

#include <QList>
#include <QString>
#include <algorithm>

#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

bool isControl(char character) {
  return (character >= '\0' && character < ' ') || character == '\x7f';
}

// Letters, marks, digits, punctuation and symbols, as UTF-8: what a person can see.
bool isVisible(std::string_view part) {
  const QString text = fromUtf8(part);
  if (toUtf8(text) != part) return false;  // not UTF-8
  const QList<uint> characters = text.toUcs4();
  return std::all_of(characters.begin(), characters.end(), [](uint character) {
    return QChar::isPrint(character) && !QChar::isSpace(character);
  });
}

// RFC 5322, section 3.2.3, plus the letters beyond ASCII of RFC 6531.
bool isAtom(std::string_view part) {
  return part.find_first_of(" ()<>[]:;@\\,\"") == std::string_view::npos && isVisible(part);
}

bool isDotted(std::string_view part) {
  return !part.empty() && part.front() != '.' && part.back() != '.' &&
         part.find("..") == std::string_view::npos && isAtom(part);
}

// What stands between two double quotes, without the backslashes that quote; std::nullopt where a
// quote stands alone.
std::optional<std::string> unquoted(std::string_view text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return std::nullopt;
  const std::string_view inside = text.substr(1, text.size() - 2);
  std::string result;
  for (std::size_t i = 0; i < inside.size(); ++i) {
    if (inside[i] == '"') return std::nullopt;
    if (inside[i] == '\\' && ++i == inside.size()) return std::nullopt;
    result += inside[i];
  }
  return hasControlCharacter(result) ? std::nullopt : std::optional(result);
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::vector<std::string> splitAddresses(std::string_view recipients) {
  std::vector<std::string> addresses;
  bool quoted = false;
  std::size_t start = 0;
  for (std::size_t i = 0; i <= recipients.size(); ++i) {
    const bool atEnd = i >= recipients.size();
    if (!atEnd && quoted && recipients[i] == '\\') {
      ++i;  // quotes what follows it
      continue;
    }
    if (!atEnd && recipients[i] == '"') quoted = !quoted;
    if (!atEnd && (quoted || recipients[i] != ',')) continue;
    const std::string_view address = trimmed(recipients.substr(start, i - start));
    if (!address.empty()) addresses.emplace_back(address);
    start = i + 1;
  }
  if (start < recipients.size()) addresses.emplace_back(trimmed(recipients.substr(start)));
  return addresses;
}

std::optional<Mailbox> parseMailbox(std::string_view text) {
  const std::size_t bracket = text.rfind('<');
  if (bracket == std::string_view::npos || !text.ends_with('>')) {
    if (!isAddress(text)) return std::nullopt;
    return Mailbox{"", std::string(text)};
  }
  const std::string_view address = text.substr(bracket + 1, text.size() - bracket - 2);
  const std::string_view name = trimmed(text.substr(0, bracket));
  std::optional<std::string> plainName = unquoted(name);
  if (!plainName && name.find_first_of("<>\"@,;:()[]\\") == std::string_view::npos &&
      !hasControlCharacter(name)) {
    plainName = name;
  }
  if (!isAddress(address) || !plainName) return std::nullopt;
  return Mailbox{*std::move(plainName), std::string(address)};
}

bool isAddress(std::string_view address) {
  const std::size_t at = address.rfind('@');
  if (at == std::string_view::npos) return false;
  const std::string_view local = address.substr(0, at);
  return (isDotted(local) || unquoted(local)) && isDotted(address.substr(at + 1));
}

bool hasControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), isControl);
}

}  // namespace qv_commons::desktop
