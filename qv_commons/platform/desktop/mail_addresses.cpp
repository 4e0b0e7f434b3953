#include "qv_commons/platform/desktop/mail_addresses.h"

#include <algorithm>

namespace qv_commons::desktop {
namespace {

bool isControl(char character) {
  return (character >= '\0' && character < ' ') || character == '\x7f';
}

// RFC 5322, section 3.2.3, plus the letters beyond ASCII of RFC 6531.
bool isPlain(std::string_view part) {
  constexpr std::string_view kSpecials = " ()<>[]:;@\\,\"";
  return std::none_of(part.begin(), part.end(), [&](char character) {
    return isControl(character) || kSpecials.find(character) != std::string_view::npos;
  });
}

bool isDotted(std::string_view part) {
  return !part.empty() && part.front() != '.' && part.back() != '.' &&
         part.find("..") == std::string_view::npos && isPlain(part);
}

// A quoted local part: backslashes quote what follows them, and no quote stands alone.
bool isQuoted(std::string_view part) {
  if (part.size() < 2 || part.front() != '"' || part.back() != '"') return false;
  const std::string_view inside = part.substr(1, part.size() - 2);
  for (std::size_t i = 0; i < inside.size(); ++i) {
    if (inside[i] == '"') return false;
    if (inside[i] == '\\' && ++i == inside.size()) return false;
  }
  return !hasControlCharacter(inside);
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
    const bool atEnd = i == recipients.size();
    if (!atEnd && recipients[i] == '"') quoted = !quoted;
    if (!atEnd && (quoted || recipients[i] != ',')) continue;
    const std::string_view address = trimmed(recipients.substr(start, i - start));
    if (!address.empty()) addresses.emplace_back(address);
    start = i + 1;
  }
  return addresses;
}

bool isAddress(std::string_view address) {
  const std::size_t at = address.rfind('@');
  if (at == std::string_view::npos) return false;
  const std::string_view local = address.substr(0, at);
  return (isDotted(local) || isQuoted(local)) && isDotted(address.substr(at + 1));
}

bool hasControlCharacter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), isControl);
}

}  // namespace qv_commons::desktop
