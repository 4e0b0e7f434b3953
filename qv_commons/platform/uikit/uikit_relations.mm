#import "qv_commons/platform/uikit/uikit_relations.h"

namespace qv_commons::uikit {

ViewControllerKind UIKitRelations::kind(UIViewController* controller) {
  if ([controller isKindOfClass:[UINavigationController class]]) {
    return ViewControllerKind::navigation;
  }
  if ([controller isKindOfClass:[UITabBarController class]]) return ViewControllerKind::tabBar;
  if ([controller isKindOfClass:[UIAlertController class]]) return ViewControllerKind::alert;
  return ViewControllerKind::plain;
}

UIViewController* UIKitRelations::child(UIViewController* controller) {
  switch (kind(controller)) {
    case ViewControllerKind::navigation:
      return static_cast<UINavigationController*>(controller).visibleViewController;
    case ViewControllerKind::tabBar:
      return static_cast<UITabBarController*>(controller).selectedViewController;
    case ViewControllerKind::plain:
    case ViewControllerKind::alert:
      return nil;
  }
}

}  // namespace qv_commons::uikit
