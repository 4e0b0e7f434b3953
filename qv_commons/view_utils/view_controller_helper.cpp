#include "qv_commons/view_utils/view_controller_helper.h"

#include "qv_commons/view_utils/top_view_controller.h"

namespace qv_commons {

ViewController* QV_ViewControllerHelper::topViewController(ViewController* controller) {
  return topViewControllerFrom(controller, ViewControllerRelations());
}

}  // namespace qv_commons
