#include "qv_commons/support/rate_helper.h"

#include <optional>

#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/support/url.h"

namespace qv_commons {

void QV_RateHelper::openWriteReviewOnAppStore(const std::string& appId) {
  const std::optional<URL> link = URL::parse(
      joinedText({"itms-apps://apps.apple.com/app/", appId, "?mt=8&action=write-review"}));
  if (link) currentPlatform().application.openURL(*link);
}

}  // namespace qv_commons
