// Property lists, XML or binary, as far as an Info.plist is asked: the texts of its top level.
//
// Other values and what lies deeper are skipped, not read, so no list can be too deep; and every
// length and place that a binary list names is checked before it is used.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace qv_commons::desktop {

using InfoTexts = std::map<std::string, std::string, std::less<>>;  // by key

// std::nullopt if the bytes are no property list, or hold anything but a dictionary. Any bytes, any
// thread.
std::optional<InfoTexts> parseInfoTexts(std::string_view bytes);

}  // namespace qv_commons::desktop
