#import "qv_commons/platform/uikit/uikit_controller.h"

#include <utility>

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/associated_object.h"
#import "qv_commons/platform/uikit/availability.h"
#import "qv_commons/platform/uikit/blocks.h"
#import "qv_commons/platform/uikit/uikit_relations.h"
#import "qv_commons/platform/uikit/uikit_view_controllers.h"

namespace qv_commons::uikit {
namespace {

const char kControllerKey = 0;

std::shared_ptr<ViewController> makeController(UIViewController* controller) {
  if ([controller isKindOfClass:[UIAlertController class]]) {
    return makeAlert(static_cast<UIAlertController*>(controller));
  }
  if ([controller isKindOfClass:[MFMailComposeViewController class]]) {
    return makeComposer(static_cast<MFMailComposeViewController*>(controller));
  }
  return std::make_shared<NativeOf<ViewController, UIKitController>>(
      UIKitRelations::kind(controller), controller);
}

}  // namespace

ViewController* toViewController(UIViewController* controller) {
  if (controller == nil) return nullptr;
  if (const std::shared_ptr<void> found = associatedObject(controller, &kControllerKey)) {
    return static_cast<ViewController*>(found.get());
  }
  const std::shared_ptr<ViewController> made = makeController(controller);
  associateController(controller, made);
  return made.get();
}

std::shared_ptr<ViewController> retainedViewController(UIViewController* controller) {
  return controller == nil ? nullptr : retaining(controller, *toViewController(controller));
}

UIViewController* toUIViewController(ViewController* controller) {
  return controller == nullptr ? nil : UIKitController::of(*controller).uiViewController();
}

void associateController(UIViewController* owner, std::shared_ptr<ViewController> controller) {
  associate(owner, &kControllerKey, std::move(controller));
}

UIKitController& UIKitController::of(ViewController& controller) {
  auto* native = dynamic_cast<UIKitController*>(&controller.native());
  if (native == nullptr) fatalError("a view controller belongs to another adapter");
  return *native;
}

void UIKitController::present(std::shared_ptr<ViewController> controller, bool animated,
                              Completion completion) {
  UIViewController* presenter = controller_;
  UIViewController* presented = toUIViewController(controller.get());
  void (^present)(void) = ^{
    [presenter presentViewController:presented animated:animated completion:toBlock(completion)];
  };
  if (presenter.transitionCoordinator == nil) return present();
  [presenter.transitionCoordinator
      animateAlongsideTransition:nil
                      completion:^(id<UIViewControllerTransitionCoordinatorContext>) {
                        present();
                      }];
}

void UIKitController::dismiss(bool animated, Completion completion) {
  [controller_ dismissViewControllerAnimated:animated completion:toBlock(std::move(completion))];
}

void UIKitController::setModalInPresentation(bool modal) {
  if (QV_IOS_AVAILABLE(13.0)) controller_.modalInPresentation = modal;
}

void UIKitController::setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
  if (QV_IOS_AVAILABLE(13.0)) {
    controller_.overrideUserInterfaceStyle = static_cast<UIUserInterfaceStyle>(style);
  }
}

ViewController* UIKitController::presented() const {
  return toViewController(UIKitRelations::presented(controller_));
}

ViewController* UIKitController::presenting() const {
  return toViewController(UIKitRelations::presenting(controller_));
}

ViewController* UIKitController::childViewController() const {
  return toViewController(UIKitRelations::child(controller_));
}

std::shared_ptr<ViewController> UIKitController::retained() const {
  return retainedViewController(controller_);
}

}  // namespace qv_commons::uikit
