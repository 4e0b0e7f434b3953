// Alerts by UIAlertController.
#pragma once

#include "qv_commons/platform/alert.h"
#import "qv_commons/platform/uikit/uikit_node.h"

namespace qv_commons::uikit {

class UIKitAlerts final : public Alerts {
 public:
  std::shared_ptr<AlertController> makeAlertController(std::string title, std::string message,
                                                       AlertStyle preferredStyle) override;
};

std::shared_ptr<UIKitNode> makeAlertNode(UIAlertController* alert);

}  // namespace qv_commons::uikit
