// Between UTF-8 and UTF-16, whose units the ranges of texts count.
#pragma once

#include <string>
#include <string_view>

namespace qv_commons::memory {

// `text` is valid UTF-8.
std::u16string utf16Of(std::string_view text);

// Half a surrogate pair becomes U+FFFD.
std::string utf8Of(std::u16string_view text);

}  // namespace qv_commons::memory
