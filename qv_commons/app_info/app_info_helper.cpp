#include "qv_commons/app_info/app_info_helper.h"

#include "qv_commons/app_info/app_info.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {

std::string QV_AppInfoHelper::appVersion() {
  return appVersionOf(currentPlatform().bundles.mainBundle());
}

std::string QV_AppInfoHelper::appId() {
  return appIdOf(currentPlatform().bundles.mainBundle());
}

std::string QV_AppInfoHelper::appName() {
  return appNameOf(currentPlatform().bundles.mainBundle());
}

}  // namespace qv_commons
