#import "qv_commons/platform/uikit/uikit_platform.h"

#import "qv_commons/platform/uikit/layout_view_controller.h"
#import "qv_commons/platform/uikit/uikit_alert.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_mail.h"
#import "qv_commons/platform/uikit/uikit_system.h"

namespace qv_commons::uikit {
namespace {

struct UIKitPlatform {
  UIKitBundles bundles;
  UIKitFiles files;
  UIKitConsole console;
  UIKitDevice device;
  UIKitLanguages languages;
  UIKitScreen screen;
  UIKitSystemVersion systemVersion;
  UIKitClock clock;
  UIKitCalendar calendar;
  UIKitUserDefaults userDefaults;
  UIKitApplication application;
  UIKitMailComposers mailComposers;
  UIKitAlerts alerts;
  UIKitLayoutLoader layoutLoader;
  const Platform references = {
      .bundles = bundles,
      .files = files,
      .console = console,
      .device = device,
      .languages = languages,
      .screen = screen,
      .systemVersion = systemVersion,
      .clock = clock,
      .calendar = calendar,
      .userDefaults = userDefaults,
      .application = application,
      .mailComposers = mailComposers,
      .alerts = alerts,
      .layoutLoader = layoutLoader,
  };
};

}  // namespace

const Platform& platform() {
  static const auto* const adapter = new UIKitPlatform;
  return adapter->references;
}

}  // namespace qv_commons::uikit

@interface QV_Installation : NSObject
@end

@implementation QV_Installation
+ (void)load {
  qv_commons::installPlatform(qv_commons::uikit::platform());
}
@end
