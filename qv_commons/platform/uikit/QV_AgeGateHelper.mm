#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_AgeGateHelper.h"

#include "qv_commons/age_gate/age_gate_helper.h"
#import "qv_commons/platform/uikit/QV_AgeGateColorTheme_Core.h"
#import "qv_commons/platform/uikit/blocks.h"
#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_controller.h"

namespace {

qv_commons::ContactUsHandler toContactUsHandler(void (^block)(UIViewController*)) {
  const auto closure = qv_commons::uikit::toClosure(block);
  if (!closure) return nullptr;
  return [closure](qv_commons::ViewController& screen) {
    closure(qv_commons::uikit::toUIViewController(&screen));
  };
}

}  // namespace

@implementation QV_AgeGateHelper

+ (void)startAgeGateProcessWithViewController:(UIViewController*)viewController
                           minimumAgeRequired:(int64_t)minimumAgeRequired
                                   completion:(void (^)(void))completion
                             contactUsHandler:(void (^)(UIViewController*))contactUsHandler
                                   colorTheme:(QV_AgeGateColorTheme*)colorTheme
                                  privacyLink:(NSString*)privacyLink
                           termsOfServiceLink:(NSString*)termsOfServiceLink {
  using namespace qv_commons::uikit;
  qv_commons::QV_AgeGateHelper::startAgeGateProcess(
      retainedViewController(viewController), minimumAgeRequired, toClosure(completion),
      toContactUsHandler(contactUsHandler), colorTheme == nil ? nullptr : [colorTheme core],
      toString(privacyLink), toString(termsOfServiceLink));
}

@end
