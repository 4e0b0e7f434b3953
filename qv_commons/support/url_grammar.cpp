#include "qv_commons/support/url_grammar.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace qv_commons {
namespace {

// The character classes of <cctype> depend on the locale; those of the grammar are ASCII.
bool isAlpha(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isHexDigit(char c) {
  return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isOneOf(char c, std::string_view characters) {
  return characters.find(c) != std::string_view::npos;
}

bool isUnreservedOrSubDelim(char c) {
  return isAlpha(c) || isDigit(c) || isOneOf(c, "-._~!$&'()*+,;=");
}

// Whether `text` consists of unreserved characters, sub-delims, percent-encoded bytes and `others`.
bool isEncodedText(std::string_view text, std::string_view others) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%') {
      if (text.size() - i < 3 || !isHexDigit(text[i + 1]) || !isHexDigit(text[i + 2])) return false;
      i += 2;
    } else if (!isUnreservedOrSubDelim(text[i]) && !isOneOf(text[i], others)) {
      return false;
    }
  }
  return true;
}

// Takes what comes before the first `delimiter` off `rest`, and the delimiter; all of it where
// there is none.
std::string_view takeBefore(std::string_view& rest, char delimiter) {
  const std::size_t at = std::min(rest.find(delimiter), rest.size());
  const std::string_view before = rest.substr(0, at);
  rest.remove_prefix(std::min(at + 1, rest.size()));
  return before;
}

// "0" to "255" without leading zeros.
bool isDecimalOctet(std::string_view text) {
  if (text.empty() || text.size() > 3 || !std::all_of(text.begin(), text.end(), isDigit))
    return false;
  if (text.size() > 1 && text.front() == '0') return false;
  return text.size() < 3 || text <= "255";
}

bool isIPv4Address(std::string_view text) {
  if (std::count(text.begin(), text.end(), '.') != 3) return false;
  for (int octet = 0; octet < 4; ++octet) {
    if (!isDecimalOctet(takeBefore(text, '.'))) return false;
  }
  return true;
}

bool isIPv6Group(std::string_view text) {
  return !text.empty() && text.size() <= 4 && std::all_of(text.begin(), text.end(), isHexDigit);
}

// The number of 16-bit groups of one side of "::", or of a whole address without "::"; nothing
// where it is malformed. An IPv4 address stands for the last two groups, if `mayEndInIPv4`.
std::optional<int> countIPv6Groups(std::string_view text, bool mayEndInIPv4) {
  if (text.empty()) return 0;
  if (text.back() == ':') return std::nullopt;
  int groups = 0;
  while (!text.empty()) {
    const std::string_view group = takeBefore(text, ':');
    if (isIPv6Group(group)) {
      groups += 1;
    } else if (text.empty() && mayEndInIPv4 && isIPv4Address(group)) {
      groups += 2;
    } else {
      return std::nullopt;
    }
  }
  return groups;
}

// "v", a version in hexadecimal, ".", an address.
bool isIPvFuture(std::string_view text) {
  if (text.empty() || (text.front() != 'v' && text.front() != 'V')) return false;
  text.remove_prefix(1);
  const std::string_view version = takeBefore(text, '.');
  return !version.empty() && std::all_of(version.begin(), version.end(), isHexDigit) &&
         !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
           return isUnreservedOrSubDelim(c) || c == ':';
         });
}

}  // namespace

bool isURLScheme(std::string_view text) {
  return !text.empty() && isAlpha(text.front()) &&
         std::all_of(text.begin(), text.end(),
                     [](char c) { return isAlpha(c) || isDigit(c) || isOneOf(c, "+-."); });
}

bool isURLUserinfo(std::string_view text) {
  return isEncodedText(text, ":");
}

bool isURLHost(std::string_view text) {
  if (!text.starts_with('[')) return isEncodedText(text, "");  // an IPv4 address is such a name too
  if (!text.ends_with(']')) return false;
  const std::string_view literal = text.substr(1, text.size() - 2);
  return isIPv6Address(literal) || isIPvFuture(literal);
}

bool isURLPort(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isDigit);
}

bool isURLPath(std::string_view text) {
  return isEncodedText(text, ":@/");
}

bool isURLQueryOrFragment(std::string_view text) {
  return isEncodedText(text, ":@/?");
}

bool isIPv6Address(std::string_view text) {
  const std::size_t gap = text.find("::");
  if (gap == std::string_view::npos) return countIPv6Groups(text, true) == 8;
  const std::optional<int> before = countIPv6Groups(text.substr(0, gap), false);
  const std::optional<int> after = countIPv6Groups(text.substr(gap + 2), true);
  return before && after && *before + *after <= 7;  // the gap stands for one group at least
}

}  // namespace qv_commons
