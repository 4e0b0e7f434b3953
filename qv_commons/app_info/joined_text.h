// A text of several pieces.
//
//     std::string text = qv_commons::joinedText({"1.0", "(", "17", ")"});  // "1.0(17)"
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace qv_commons {

// The pieces, one after the other. One allocation, that of the result. Any thread.
std::string joinedText(std::initializer_list<std::string_view> pieces);

}  // namespace qv_commons
