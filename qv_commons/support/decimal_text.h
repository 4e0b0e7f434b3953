// The shortest decimal text of a double that reads back as the same double.
//
//     std::string width = qv_commons::decimalText(375);      // "375.0"
//     std::string height = qv_commons::decimalText(1194.5);  // "1194.5"
#pragma once

#include <string>

#include "qv_commons/export.h"

namespace qv_commons {

// Always positional and always with a fraction: whole numbers end in ".0", a minus sign comes
// first, also for -0.0. Not a number and the infinities give "nan", "inf" and "-inf". Independent
// of the locale. Any thread.
//
// Written here because floating-point std::to_chars is missing from the C++ library of the oldest
// system that the library runs on.
QV_COMMONS_EXPORT std::string decimalText(double value);

}  // namespace qv_commons
