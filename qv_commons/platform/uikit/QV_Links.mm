#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_Links.h"

#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"
#include "qv_commons/support/links.h"

namespace {

// Never nil: what the library takes for a URL is strictly one.
NSURL* toNSURL(const qv_commons::URL& url) {
  return [NSURL URLWithString:qv_commons::uikit::toNSString(url.text())];
}

}  // namespace

@implementation QV_Links

+ (NSURL*)privacyPolicy {
  return toNSURL(qv_commons::QV_Links::privacyPolicy());
}

+ (NSURL*)termsOfService {
  return toNSURL(qv_commons::QV_Links::termsOfService());
}

@end
