#include "qv_commons/app_info/app_info_helper.h"

#include "qv_commons/app_info/joined_text.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons {
namespace {

std::string textForKey(const Bundle& bundle, std::string_view key) {
  return bundle.textForInfoDictionaryKey(key).value_or(std::string());
}

}  // namespace

std::string appVersionOf(const Bundle& bundle) {
  return joinedText({textForKey(bundle, "CFBundleShortVersionString"), "(",
                     textForKey(bundle, "CFBundleVersion"), ")"});
}

std::string appIdOf(const Bundle& bundle) {
  return bundle.bundleIdentifier().value_or(std::string());
}

std::string appNameOf(const Bundle& bundle) {
  return textForKey(bundle, "CFBundleDisplayName");
}

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
