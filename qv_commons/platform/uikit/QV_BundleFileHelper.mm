#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_BundleFileHelper.h"

#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"

@implementation QV_BundleFileHelper

+ (NSBundle*)getQVCommonsResourceBundle {
  return qv_commons::uikit::toNSBundle(
      qv_commons::QV_BundleFileHelper::getQVCommonsResourceBundle().get());
}

+ (NSString*)loadJsonFromBundleWithFilename:(NSString*)filename {
  using namespace qv_commons::uikit;
  const auto text = qv_commons::QV_BundleFileHelper::loadJsonFromBundle(toString(filename));
  return text ? toNSString(*text) : nil;
}

@end
