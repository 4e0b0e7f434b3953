// View controllers of the library's over those of UIKit's.
#pragma once

#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/presentation.h"

namespace qv_commons::uikit {

// The library's controller for one of UIKit's: found again, or made where it is one of the host's
// that the library sees for the first time. It lives as long as UIKit's does. Null for nil.
ViewController* toViewController(UIViewController* controller);

// Keeps UIKit's controller alive. Null for nil.
std::shared_ptr<ViewController> retainedViewController(UIViewController* controller);

// nil for null.
UIViewController* toUIViewController(ViewController* controller);

// Makes `controller` the one that `toViewController` gives for `owner`, which keeps it.
void associateController(UIViewController* owner, std::shared_ptr<ViewController> controller);

// The native of every controller: forwards to UIKit's.
class UIKitController {
 public:
  // `toViewController` finds the library's side.
  UIKitController(ViewController&, UIViewController* controller) : controller_(controller) {}
  virtual ~UIKitController() = default;

  static UIKitController& of(ViewController& controller);

  UIViewController* uiViewController() const { return controller_; }

  // Presents at once, or at the end of the transition that this controller is part of: UIKit may
  // lose what it is told to present meanwhile.
  void present(std::shared_ptr<ViewController> controller, bool animated, Completion completion);
  void dismiss(bool animated, Completion completion);
  void setModalInPresentation(bool modal);
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style);
  ViewController* presented() const;
  ViewController* presenting() const;
  ViewController* childViewController() const;
  std::shared_ptr<ViewController> retained() const;

 private:
  __weak UIViewController* controller_;
};

}  // namespace qv_commons::uikit
