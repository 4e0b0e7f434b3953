// The native side of every view controller of the iOS adapter: forwards to a UIViewController.
#pragma once

#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::uikit {

class UIKitNode : public NativeViewController {
 public:
  // Belongs to `controller` once it is attached with `attachNode`.
  explicit UIKitNode(UIViewController* controller);

  UIViewController* uiViewController() const { return controller_; }

  // The C++ side of this node.
  virtual ViewController& controller() = 0;

  void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                             Completion completion) override;
  void dismissViewController(bool animated, Completion completion) override;
  void setModalInPresentation(bool modal) override;
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style) override;
  ViewController* presentedViewController() const override;
  ViewController* presentingViewController() const override;
  ViewController* childViewController() const override;
  std::shared_ptr<ViewController> retained() override;

 private:
  __weak UIViewController* controller_;
};

void attachNode(UIViewController* controller, std::shared_ptr<UIKitNode> node);

// The node of a controller: found again, or made and attached where the controller is one of the
// host's that the library sees for the first time.
UIKitNode& nodeOf(UIViewController* controller);

// Null for nil. The C++ side lives as long as the controller does.
ViewController* toViewController(UIViewController* controller);
UIViewController* toUIViewController(const ViewController* controller);

// Null for nil; otherwise keeps the controller alive.
std::shared_ptr<ViewController> retainedViewController(UIViewController* controller);

}  // namespace qv_commons::uikit
