// The white space of Unicode around a text.
//
//     std::string_view text = qv_commons::trimmed("\u2003 1:30\n");  // "1:30"
#pragma once

#include <string_view>

namespace qv_commons {

// `text`, which is UTF-8, without these characters at both ends: tab, U+000A to U+000D, U+0085,
// U+2028, U+2029 and the space separators (general category Zs of Unicode). Other bytes stay, also
// those that are not valid UTF-8. Any thread.
std::string_view trimmed(std::string_view text);

}  // namespace qv_commons
