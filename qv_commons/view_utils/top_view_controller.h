// The walk to the top-most view controller, over controllers of any type.
//
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//     qv_commons::ViewController* top =
//         qv_commons::topViewControllerFrom(home.get(), qv_commons::ViewControllerLinks());
//
// `QV_ViewControllerHelper` is this walk over the library's own controllers. An adapter whose hosts
// have native controllers walks those with links of its own.
#pragma once

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

// How the walk asks a controller. A `Links` type for another type of controller has the same four
// operations; `Controller` is anything that converts to bool, false for "absent".
struct ViewControllerLinks {
  using Controller = ViewController*;

  static ViewControllerKind kind(Controller controller) { return controller->kind(); }
  static Controller child(Controller controller) { return controller->childViewController(); }
  static Controller presented(Controller controller) {
    return controller->presentedViewController();
  }
  static Controller presenting(Controller controller) {
    return controller->presentingViewController();
  }
};

// See `QV_ViewControllerHelper::topViewController`. A loop, so any depth takes the same stack; each
// controller is asked for its kind once, and for no link that the answer does not need.
template <class Links>
typename Links::Controller topViewControllerFrom(typename Links::Controller controller,
                                                 const Links& links) {
  while (controller) {
    const ViewControllerKind kind = links.kind(controller);
    if (kind == ViewControllerKind::navigation) {
      controller = links.child(controller);
      continue;
    }
    typename Links::Controller next{};
    if (kind == ViewControllerKind::tabBar) next = links.child(controller);
    if (!next) next = links.presented(controller);
    if (!next) return kind == ViewControllerKind::alert ? links.presenting(controller) : controller;
    controller = next;
  }
  return controller;
}

}  // namespace qv_commons
