#include "qv_commons/age_gate/tapped_link.h"

#include <optional>
#include <string>

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/views.h"
#include "qv_commons/support/url.h"

namespace qv_commons {

void interactWithLink(TextView& textView, TextViewDelegate* delegate, std::string_view value,
                      TextRange range, Application& application) {
  if (delegate != nullptr && !delegate->shouldInteractWithURL(textView, value, range)) return;
  if (const std::optional<URL> url = URL::parse(std::string(value))) application.openURL(*url);
}

}  // namespace qv_commons
