// Property lists in their binary form.
#pragma once

#include "qv_commons/platform/desktop/property_list.h"

namespace qv_commons::desktop {

// The same as parseInfoTexts, of a binary list.
std::optional<InfoTexts> parseBinaryInfoTexts(std::string_view bytes);

}  // namespace qv_commons::desktop
