// How UIKit's controllers are asked for their kind and for each other. Only reads.
#pragma once

#import <UIKit/UIKit.h>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::uikit {

struct UIKitRelations {
  using Controller = UIViewController*;

  static ViewControllerKind kind(UIViewController* controller);
  static UIViewController* child(UIViewController* controller);
  static UIViewController* presented(UIViewController* controller) {
    return controller.presentedViewController;
  }
  static UIViewController* presenting(UIViewController* controller) {
    return controller.presentingViewController;
  }
};

}  // namespace qv_commons::uikit
