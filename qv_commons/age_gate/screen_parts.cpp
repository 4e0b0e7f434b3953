#include "qv_commons/age_gate/screen_parts.h"

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {

void stopAtOutlet(std::string_view screen, std::string_view name) {
  std::string message(screen);
  message.append(": the outlet \"").append(name).append("\" is not connected");
  fatalError(message);
}

}  // namespace qv_commons
