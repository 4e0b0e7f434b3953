// The search for the top-most view controller, over controllers of any type.
//
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//     qv_commons::ViewController* top =
//         qv_commons::topViewControllerFrom(home.get(), qv_commons::ViewControllerRelations());
//
// `QV_ViewControllerHelper` searches the library's own controllers with it. An adapter whose hosts
// have controllers of the platform's searches those, with relations of its own.
#pragma once

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

// How a controller is asked. A type for other controllers has the same four operations;
// `Controller` is anything that converts to bool, false if there is none.
struct ViewControllerRelations {
  using Controller = ViewController*;

  static ViewControllerKind kind(Controller of) { return of->kind(); }
  static Controller child(Controller of) { return of->childViewController(); }
  static Controller presented(Controller by) { return by->presentedViewController(); }
  static Controller presenting(Controller shown) { return shown->presentingViewController(); }
};

// See `QV_ViewControllerHelper::topViewController`. A loop, so any depth takes the same stack; each
// controller is asked for its kind once, and for nothing that the answer does not need.
template <class Relations>
typename Relations::Controller topViewControllerFrom(typename Relations::Controller controller,
                                                     const Relations& relations) {
  while (controller) {
    const ViewControllerKind kind = relations.kind(controller);
    if (kind == ViewControllerKind::navigation) {
      controller = relations.child(controller);
      continue;
    }
    typename Relations::Controller next{};
    if (kind == ViewControllerKind::tabBar) next = relations.child(controller);
    if (!next) next = relations.presented(controller);
    if (!next) {
      return kind == ViewControllerKind::alert ? relations.presenting(controller) : controller;
    }
    controller = next;
  }
  return controller;
}

}  // namespace qv_commons
