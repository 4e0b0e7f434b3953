#include "qv_commons/support/url.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace qv_commons {
namespace {

// The names in these comments are those of RFC 3986, appendix A. <cctype> depends on the locale;
// the grammar's characters are ASCII.
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::string_view kUnreservedAndSubDelims =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-._~!$&'()*+,;=";
constexpr std::string_view kSchemeCharacters =
    "0123456789+-.ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

bool contains(std::string_view characters, char c) {
  return characters.find(c) != std::string_view::npos;
}

bool isHex(std::string_view text) {
  return text.find_first_not_of(kHexDigits) == std::string_view::npos;
}

// Takes what follows the first `delimiter` off `text`, and the delimiter; "" if there is none.
std::string_view takeAfter(std::string_view& text, char delimiter) {
  const std::size_t at = text.find(delimiter);
  if (at == std::string_view::npos) return "";
  const std::string_view after = text.substr(at + 1);
  text = text.substr(0, at);
  return after;
}

// Whether `text` consists of unreserved, sub-delims, pct-encoded and `others`.
bool isEncoded(std::string_view text, std::string_view others) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%') {
      if (text.size() - i < 3 || !isHex(text.substr(i + 1, 2))) return false;
      i += 2;
    } else if (!contains(kUnreservedAndSubDelims, text[i]) && !contains(others, text[i])) {
      return false;
    }
  }
  return true;
}

bool isScheme(std::string_view text) {
  return !text.empty() && !contains("0123456789+-.", text.front()) &&
         text.find_first_not_of(kSchemeCharacters) == std::string_view::npos;
}

// Four numbers from "0" to "255" without leading zeros.
bool isIPv4Address(std::string_view text) {
  const char* at = text.data();
  const char* const end = at + text.size();
  for (int octets = 0; octets < 4; ++octets) {
    if (octets > 0 && (at == end || *at++ != '.')) return false;
    std::uint8_t octet = 0;
    const auto [next, error] = std::from_chars(at, end, octet);
    if (error != std::errc() || (*at == '0' && next - at > 1)) return false;
    at = next;
  }
  return at == end;
}

// Eight groups of up to four digits; "::" stands once for one or more of them, an IPv4 address at
// the end for two.
bool isIPv6Address(std::string_view text) {
  int groups = 0;
  bool hasGap = text.starts_with("::");
  if (hasGap) text.remove_prefix(2);
  while (!text.empty()) {
    const std::string_view group = text.substr(0, text.find(':'));
    text.remove_prefix(group.size());
    const bool isIPv4 = text.empty() && isIPv4Address(group);
    if (!isIPv4 && (group.empty() || group.size() > 4 || !isHex(group))) return false;
    groups += isIPv4 ? 2 : 1;
    if (text.starts_with("::")) {
      if (std::exchange(hasGap, true)) return false;
      text.remove_prefix(2);
    } else if (!text.empty()) {
      text.remove_prefix(1);
      if (text.empty()) return false;
    }
  }
  return hasGap ? groups < 8 : groups == 8;
}

// "v", a version in hexadecimal, ".", an address.
bool isIPvFuture(std::string_view text) {
  const std::string_view address = takeAfter(text, '.');
  return text.size() > 1 && contains("vV", text.front()) && isHex(text.substr(1)) &&
         !address.empty() && !contains(address, '%') && isEncoded(address, ":");
}

bool isHost(std::string_view text) {
  if (!text.starts_with('[')) return isEncoded(text, "");  // reg-name or IPv4address
  if (!text.ends_with(']')) return false;
  const std::string_view literal = text.substr(1, text.size() - 2);
  return isIPv6Address(literal) || isIPvFuture(literal);
}

bool isAuthority(std::string_view text) {
  const std::size_t at = text.find('@');
  if (at != std::string_view::npos) {
    if (!isEncoded(text.substr(0, at), ":")) return false;  // userinfo
    text.remove_prefix(at + 1);
  }
  const std::size_t colon = text.find_last_not_of("0123456789");  // if it is one, a port follows
  const bool hasPort = colon != std::string_view::npos && text[colon] == ':';
  return isHost(hasPort ? text.substr(0, colon) : text);
}

bool isURI(std::string_view text) {
  const std::string_view fragment = takeAfter(text, '#');
  const std::string_view query = takeAfter(text, '?');
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || !isScheme(text.substr(0, colon))) return false;
  std::string_view path = text.substr(colon + 1);
  if (path.starts_with("//")) {
    path.remove_prefix(2);
    const std::size_t slash = std::min(path.find('/'), path.size());
    if (!isAuthority(path.substr(0, slash))) return false;
    path.remove_prefix(slash);
  }
  return isEncoded(path, ":@/") && isEncoded(query, ":@/?") && isEncoded(fragment, ":@/?");
}

}  // namespace

std::optional<URL> URL::parse(std::string text) {
  return isURI(text) ? std::optional(URL(std::move(text))) : std::nullopt;
}

}  // namespace qv_commons
