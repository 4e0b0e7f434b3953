#import "qv_commons/platform/uikit/uikit_alert.h"

#include <utility>

#import "qv_commons/platform/uikit/blocks.h"
#import "qv_commons/platform/uikit/text.h"

namespace qv_commons::uikit {
namespace {

class Alert final : public AlertController {
 public:
  using AlertController::AlertController;

  void addAction(std::string title, AlertActionStyle style, Completion handler) override {
    void (^block)(void) = toBlock(std::move(handler));
    void (^handlerBlock)(UIAlertAction*) = nil;
    if (block != nil) {
      handlerBlock = ^(UIAlertAction*) {
        block();
      };
    }
    auto* alert = static_cast<UIAlertController*>(toUIViewController(this));
    [alert addAction:[UIAlertAction actionWithTitle:toNSString(title)
                                              style:static_cast<UIAlertActionStyle>(style)
                                            handler:handlerBlock]];
  }
};

class AlertNode final : public UIKitNode {
 public:
  using UIKitNode::UIKitNode;
  Alert& controller() override { return alert_; }

 private:
  Alert alert_{*this};
};

}  // namespace

std::shared_ptr<UIKitNode> makeAlertNode(UIAlertController* alert) {
  return std::make_shared<AlertNode>(alert);
}

std::shared_ptr<AlertController> UIKitAlerts::makeAlertController(std::string title,
                                                                  std::string message,
                                                                  AlertStyle preferredStyle) {
  UIAlertController* alert = [UIAlertController
      alertControllerWithTitle:toNSString(title)
                       message:toNSString(message)
                preferredStyle:static_cast<UIAlertControllerStyle>(preferredStyle)];
  return std::static_pointer_cast<AlertController>(retainedViewController(alert));
}

}  // namespace qv_commons::uikit
