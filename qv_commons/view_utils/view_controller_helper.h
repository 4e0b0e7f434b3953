// The view controller that is on top of the screen.
//
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//     home->presentViewController(platform.makeViewController("settings"), true, nullptr);
//     qv_commons::ViewController* top =
//         qv_commons::QV_ViewControllerHelper::topViewController(home.get());  // the settings
//
// Main thread.
#pragma once

#include "qv_commons/export.h"
#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

class QV_COMMONS_EXPORT QV_ViewControllerHelper {
 public:
  // Goes from `controller` to what it shows, again and again, until nothing more is shown: from a
  // navigation controller to its visible controller, from a tab bar controller to its selected one
  // or else to what it presents, from every other to what it presents. An alert at the end gives
  // the controller that presents it, as it stands.
  //
  // Null if `controller` is null, if a navigation controller on the way shows nothing, or if an
  // alert at the end is not presented. The result is not owned. Any depth, without allocation.
  static ViewController* topViewController(ViewController* controller);
};

}  // namespace qv_commons
