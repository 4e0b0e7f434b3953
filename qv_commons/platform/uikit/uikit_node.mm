#import "qv_commons/platform/uikit/uikit_node.h"

#include <utility>

#import "qv_commons/platform/uikit/attachment.h"
#import "qv_commons/platform/uikit/availability.h"
#import "qv_commons/platform/uikit/blocks.h"
#import "qv_commons/platform/uikit/uikit_alert.h"
#import "qv_commons/platform/uikit/uikit_links.h"
#import "qv_commons/platform/uikit/uikit_mail.h"

namespace qv_commons::uikit {
namespace {

const char kNodeKey = 0;

// A screen of the host's.
class HostNode final : public UIKitNode {
 public:
  using UIKitNode::UIKitNode;
  ViewController& controller() override { return controller_; }

 private:
  ViewController controller_{*this};
};

std::shared_ptr<UIKitNode> makeNode(UIViewController* controller) {
  if ([controller isKindOfClass:[UIAlertController class]]) {
    return makeAlertNode(static_cast<UIAlertController*>(controller));
  }
  if ([controller isKindOfClass:[MFMailComposeViewController class]]) {
    return makeMailNode(static_cast<MFMailComposeViewController*>(controller));
  }
  return std::make_shared<HostNode>(controller);
}

}  // namespace

UIKitNode::UIKitNode(UIViewController* controller)
    : NativeViewController(UIKitLinks::kind(controller)), controller_(controller) {}

void UIKitNode::presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                                      Completion completion) {
  [controller_ presentViewController:toUIViewController(controller.get())
                            animated:animated
                          completion:toBlock(std::move(completion))];
}

void UIKitNode::dismissViewController(bool animated, Completion completion) {
  [controller_ dismissViewControllerAnimated:animated completion:toBlock(std::move(completion))];
}

void UIKitNode::setModalInPresentation(bool modal) {
  if (QV_IOS_AVAILABLE(13.0)) controller_.modalInPresentation = modal;
}

void UIKitNode::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  if (QV_IOS_AVAILABLE(13.0)) {
    controller_.overrideUserInterfaceStyle = static_cast<UIUserInterfaceStyle>(style);
  }
}

ViewController* UIKitNode::presentedViewController() const {
  return toViewController(UIKitLinks::presented(controller_));
}

ViewController* UIKitNode::presentingViewController() const {
  return toViewController(UIKitLinks::presenting(controller_));
}

ViewController* UIKitNode::childViewController() const {
  return toViewController(UIKitLinks::child(controller_));
}

std::shared_ptr<ViewController> UIKitNode::retained() {
  return retaining(controller_, controller());
}

void attachNode(UIViewController* controller, std::shared_ptr<UIKitNode> node) {
  attach(controller, &kNodeKey, std::move(node));
}

UIKitNode& nodeOf(UIViewController* controller) {
  if (const std::shared_ptr<void> attached = attachmentOf(controller, &kNodeKey)) {
    return *static_cast<UIKitNode*>(attached.get());
  }
  const std::shared_ptr<UIKitNode> made = makeNode(controller);
  attachNode(controller, made);
  return *made;
}

ViewController* toViewController(UIViewController* controller) {
  return controller == nil ? nullptr : &nodeOf(controller).controller();
}

// One process has one adapter, so every native that comes in is one of its nodes.
UIViewController* toUIViewController(const ViewController* controller) {
  if (controller == nullptr) return nil;
  return static_cast<UIKitNode&>(controller->native()).uiViewController();
}

std::shared_ptr<ViewController> retainedViewController(UIViewController* controller) {
  return controller == nil ? nullptr : nodeOf(controller).retained();
}

}  // namespace qv_commons::uikit
