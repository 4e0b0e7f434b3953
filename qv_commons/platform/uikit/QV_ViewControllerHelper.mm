#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_ViewControllerHelper.h"

#include "qv_commons/platform/uikit/linked_in.h"
#import "qv_commons/platform/uikit/uikit_relations.h"
#include "qv_commons/view_utils/top_view_controller.h"

@implementation QV_ViewControllerHelper

+ (UIViewController*)topViewControllerWithController:(UIViewController*)controller {
  return qv_commons::topViewControllerFrom(controller, qv_commons::uikit::UIKitRelations());
}

@end
