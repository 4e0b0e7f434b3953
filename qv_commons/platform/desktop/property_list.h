// Property lists, XML or binary, as far as an Info.plist is asked: the values of its top level.
//
// What lies deeper is skipped, not read, so no list can be too deep; and every length and place
// that a binary list names is checked before it is used.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "qv_commons/platform/bundle.h"

namespace qv_commons::desktop {

using InfoDictionary = std::map<std::string, InfoDictionaryValue, std::less<>>;

// std::nullopt if the bytes are no property list, or hold anything but a dictionary. Any bytes, any
// thread.
std::optional<InfoDictionary> parseInfoDictionary(std::string_view bytes);

}  // namespace qv_commons::desktop
