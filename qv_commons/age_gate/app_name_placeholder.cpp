#include "qv_commons/age_gate/app_name_placeholder.h"

namespace qv_commons {

std::string fillInAppName(std::string_view text, std::string_view appName) {
  constexpr std::string_view kPlaceholder = "[APPNAME]";
  std::string filled;
  for (;;) {
    const std::size_t found = text.find(kPlaceholder);
    filled.append(text.substr(0, found));
    if (found == std::string_view::npos) return filled;
    filled.append(appName);
    text.remove_prefix(found + kPlaceholder.size());
  }
}

}  // namespace qv_commons
