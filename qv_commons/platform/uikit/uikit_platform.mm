#import "qv_commons/platform/uikit/uikit_platform.h"

#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_system.h"
#import "qv_commons/platform/uikit/uikit_view_controllers.h"

namespace qv_commons::uikit {
namespace {

struct UIKitPlatform {
  UIKitBundles bundles;
  UIKitDevice device;
  UIKitClock clock;
  UIKitCalendar calendar;
  UIKitUserDefaults userDefaults;
  UIKitApplication application;
  UIKitViewControllers viewControllers;
  const Platform references = {
      .bundles = bundles,
      .device = device,
      .clock = clock,
      .calendar = calendar,
      .userDefaults = userDefaults,
      .application = application,
      .viewControllers = viewControllers,
  };
};

}  // namespace

const Platform& platform() {
  static const auto* const adapter = new UIKitPlatform;
  return adapter->references;
}

void installAdapter() {
  installPlatform(platform());
}

}  // namespace qv_commons::uikit

@interface QV_Installation : NSObject
@end

@implementation QV_Installation
+ (void)load {
  qv_commons::uikit::installAdapter();
}
@end
