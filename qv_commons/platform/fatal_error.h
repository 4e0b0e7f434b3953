// The one way in which the library stops the process.
//
// A fatal error is a programming error of the host or of a layout: an outlet that is not connected,
// a text too short for its links. There is no way on, so the process prints why and aborts.
//
//     std::string_view title = "Notes";
//     if (title.empty()) qv_commons::fatalError("QV_Example: the title is empty");
#pragma once

#include <string_view>

#include "qv_commons/export.h"

namespace qv_commons {

// Prints "QV_Commons fatal error: " and `message` as one line to the standard error stream, then
// aborts. Never returns. Any thread.
[[noreturn]] QV_COMMONS_EXPORT void fatalError(std::string_view message);

}  // namespace qv_commons
