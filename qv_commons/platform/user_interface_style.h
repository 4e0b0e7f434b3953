// The light or dark look of a screen.
#pragma once

#include <cstdint>

namespace qv_commons {

// The numeric values are the platform's own.
enum class UserInterfaceStyle : std::int8_t { unspecified = 0, light = 1, dark = 2 };

}  // namespace qv_commons
