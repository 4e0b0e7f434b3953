#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_TimeHelper.h"

#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"
#include "qv_commons/time/time_helper.h"

using qv_commons::uikit::toNSString;
using qv_commons::uikit::toString;

@implementation QV_TimeHelper

+ (int64_t)currentTimeInMilliseconds {
  return qv_commons::QV_TimeHelper::currentTimeInMilliseconds();
}

+ (NSInteger)currentTimeInSeconds {
  return qv_commons::QV_TimeHelper::currentTimeInSeconds();
}

+ (int64_t)secondsToMinutes:(int64_t)seconds roundUp:(BOOL)roundUp {
  return qv_commons::QV_TimeHelper::secondsToMinutes(seconds, roundUp);
}

+ (NSInteger)secondsToDaysWithSeconds:(NSInteger)seconds {
  return qv_commons::QV_TimeHelper::secondsToDays(seconds);
}

+ (NSString*)secondsToHms:(int64_t)seconds {
  return toNSString(qv_commons::QV_TimeHelper::secondsToHms(seconds));
}

+ (NSString*)secondsToHmsDigits:(int64_t)seconds {
  return toNSString(qv_commons::QV_TimeHelper::secondsToHmsDigits(seconds));
}

+ (int64_t)hmsToSeconds:(NSString*)text {
  return qv_commons::QV_TimeHelper::hmsToSeconds(toString(text));
}

@end
