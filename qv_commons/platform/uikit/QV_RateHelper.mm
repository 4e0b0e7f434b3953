#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_RateHelper.h"

#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"
#include "qv_commons/support/rate_helper.h"

@implementation QV_RateHelper

+ (void)openWriteReviewOnAppStoreWithAppId:(NSString*)appId {
  qv_commons::QV_RateHelper::openWriteReviewOnAppStore(qv_commons::uikit::toString(appId));
}

@end
