#include "qv_commons/support/rate_helper.h"

#include <optional>
#include <string_view>
#include <utility>

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/platform.h"
#include "qv_commons/support/url.h"

namespace qv_commons {

void QV_RateHelper::openWriteReviewOnAppStore(const std::string& appId) {
  constexpr std::string_view kBefore = "itms-apps://apps.apple.com/app/";  // the store's web host
  constexpr std::string_view kAfter = "?mt=8&action=write-review";
  std::string text;
  text.reserve(kBefore.size() + appId.size() + kAfter.size());
  text.append(kBefore).append(appId).append(kAfter);
  if (const std::optional<URL> link = URL::parse(std::move(text))) {
    currentPlatform().application.openURL(*link);
  }
}

}  // namespace qv_commons
