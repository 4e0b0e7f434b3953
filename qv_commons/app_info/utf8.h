// Whether bytes are UTF-8.
//
//     bool text = qv_commons::isUtf8("caf\xC3\xA9");  // true
//     bool bytes = qv_commons::isUtf8("caf\xE9");     // false
#pragma once

#include <string_view>

namespace qv_commons {

// Well-formed UTF-8 as in the Unicode Standard 15.0, table 3-7: no overlong forms, no surrogates,
// no code points above U+10FFFF, no truncated characters. A byte order mark and NUL are characters
// like others. Any thread.
bool isUtf8(std::string_view bytes);

}  // namespace qv_commons
