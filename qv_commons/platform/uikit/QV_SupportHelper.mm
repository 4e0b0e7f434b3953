#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_SupportHelper.h"

#include <utility>

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/associated_object.h"
#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_mail.h"
#include "qv_commons/support/support_helper.h"

namespace {

const char kDelegateKey = 0;

// Tells an Objective-C delegate, which owns it.
class Delegate final : public qv_commons::QV_SupportHelperDelegate {
 public:
  explicit Delegate(id<QV_SupportHelperDelegate> delegate) : delegate_(delegate) {}
  void onCompletion() override { [delegate_ onCompletion]; }

 private:
  __weak id<QV_SupportHelperDelegate> delegate_;
};

// The C++ side of a delegate: found again, or made and associated. Null for nil.
std::shared_ptr<Delegate> toDelegate(id<QV_SupportHelperDelegate> delegate) {
  using namespace qv_commons::uikit;
  if (delegate == nil) return nullptr;
  if (std::shared_ptr<void> found = associatedObject(delegate, &kDelegateKey)) {
    return std::static_pointer_cast<Delegate>(std::move(found));
  }
  const auto made = std::make_shared<Delegate>(delegate);
  associate(delegate, &kDelegateKey, made);
  return made;
}

}  // namespace

@implementation QV_SupportHelper {
  std::shared_ptr<qv_commons::QV_SupportHelper> _core;
}

+ (QV_SupportHelper*)shared {
  static QV_SupportHelper* const shared = [[QV_SupportHelper alloc]
      initWithCore:qv_commons::QV_SupportHelper::shared().shared_from_this()];
  return shared;
}

- (instancetype)initWithCore:(std::shared_ptr<qv_commons::QV_SupportHelper>)core {
  if ((self = [super init])) {
    _core = std::move(core);
    qv_commons::uikit::setNativeDelegate(*_core, self);
  }
  return self;
}

- (instancetype)init {
  return [self initWithCore:qv_commons::QV_SupportHelper::create()];
}

- (void)dealloc {
  qv_commons::uikit::setNativeDelegate(*_core, nil);
}

- (void)contactSupportWithViewController:(UIViewController*)viewController
                                   email:(NSString*)email
                                 subject:(NSString*)subject
                               purchases:(NSArray<NSString*>*)purchases
                          openingMessage:(NSString*)openingMessage
                      additionalMetadata:(NSString*)additionalMetadata
                                delegate:(id<QV_SupportHelperDelegate>)delegate {
  using namespace qv_commons::uikit;
  if (viewController == nil) {
    qv_commons::fatalError("QV_SupportHelper: contactSupport needs a view controller");
  }
  _core->contactSupport(*toViewController(viewController), toString(email), toString(subject),
                        toStrings(purchases), toOptionalString(openingMessage),
                        toOptionalString(additionalMetadata), toDelegate(delegate));
}

- (void)mailComposeController:(MFMailComposeViewController*)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)error {
  qv_commons::uikit::reportFinish(*_core, controller, result, error);
}

@end
