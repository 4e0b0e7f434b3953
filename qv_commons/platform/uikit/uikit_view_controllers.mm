#import "qv_commons/platform/uikit/uikit_view_controllers.h"

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/QV_AgeGateRefusedViewController.h"
#import "qv_commons/platform/uikit/QV_AgeGateViewController.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_controller.h"

namespace qv_commons::uikit {
namespace {

// Not by NSClassFromString: a linker leaves out a class of a static library that is not
// referred to.
Class screenClass(std::string_view name) {
  for (Class type in
       @[ [QV_AgeGateViewController class], [QV_AgeGateRefusedViewController class] ]) {
    if (name == toString(NSStringFromClass(type))) return type;
  }
  fatalError(std::string("no screen class has the name of the layout ").append(name));
}

}  // namespace

bool UIKitViewControllers::canSendMail() const {
  return [MFMailComposeViewController canSendMail];
}

std::shared_ptr<MailComposer> UIKitViewControllers::makeMailComposer() {
  return std::static_pointer_cast<MailComposer>(
      retainedViewController([[MFMailComposeViewController alloc] init]));
}

std::shared_ptr<AlertController> UIKitViewControllers::makeAlertController(
    std::string title, std::string message, AlertStyle preferredStyle) {
  UIAlertController* alert = [UIAlertController
      alertControllerWithTitle:toNSString(title)
                       message:toNSString(message)
                preferredStyle:static_cast<UIAlertControllerStyle>(preferredStyle)];
  return std::static_pointer_cast<AlertController>(retainedViewController(alert));
}

std::shared_ptr<LayoutScreen> UIKitViewControllers::initWithNibName(
    std::string_view name, std::shared_ptr<Bundle> bundle, const LayoutScreenFactory& make) {
  QV_LayoutViewController* controller =
      [[screenClass(name) alloc] initWithNibName:toNSString(name)
                                          bundle:toNSBundle(bundle.get())
                                         factory:make];
  return std::static_pointer_cast<LayoutScreen>(retainedViewController(controller));
}

}  // namespace qv_commons::uikit
