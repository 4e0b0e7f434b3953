#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_AppInfoHelper.h"

#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"

using qv_commons::uikit::toNSString;

@implementation QV_AppInfoHelper

+ (NSString*)appVersion {
  return toNSString(qv_commons::QV_AppInfoHelper::appVersion());
}

+ (NSString*)appId {
  return toNSString(qv_commons::QV_AppInfoHelper::appId());
}

+ (NSString*)appName {
  return toNSString(qv_commons::QV_AppInfoHelper::appName());
}

@end
