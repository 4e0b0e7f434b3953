// The white space of Unicode around a text.
//
//     std::string_view text = qv_commons::trimmed("\u2003 1:30\n");  // "1:30"
#pragma once

#include <string_view>

namespace qv_commons {

namespace white_space {

inline bool isASCII(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

inline bool isPlain(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view trimmedOfAll(std::string_view text);

}  // namespace white_space

// `text`, which is UTF-8, without these characters at both ends: tab, U+000A to U+000D, U+0085,
// U+2028, U+2029 and the space separators (general category Zs of Unicode). Other bytes, also those
// that are no UTF-8, stay. Pure; any thread.
inline std::string_view trimmed(std::string_view text) {
  while (!text.empty() && white_space::isPlain(text.front())) text.remove_prefix(1);
  while (!text.empty() && white_space::isPlain(text.back())) text.remove_suffix(1);
  const bool done =
      text.empty() || (white_space::isASCII(text.front()) && white_space::isASCII(text.back()));
  return done ? text : white_space::trimmedOfAll(text);
}

}  // namespace qv_commons
