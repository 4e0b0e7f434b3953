// The app's name in a text that has a place for it.
//
//     std::string text = qv_commons::fillInAppName("[APPNAME] is closed", "Notes");
#pragma once

#include <string>
#include <string_view>

namespace qv_commons {

// `text` with every "[APPNAME]", spelled exactly so, replaced by `appName`. A placeholder within
// the app's name is not replaced again. Any thread.
std::string fillInAppName(std::string_view text, std::string_view appName);

}  // namespace qv_commons
