#import "qv_commons/platform/uikit/uikit_view_controllers.h"

#include "qv_commons/platform/fatal_error.h"
#import "qv_commons/platform/uikit/layout_view_controller.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_controller.h"

namespace qv_commons::uikit {

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
  NSString* nibName = toNSString(name);
  const Class type = NSClassFromString(nibName);
  if (![type isSubclassOfClass:[QV_LayoutViewController class]]) {
    fatalError(std::string("no screen class has the name of the layout ").append(name));
  }
  QV_LayoutViewController* controller = [[type alloc] initWithNibName:nibName
                                                               bundle:toNSBundle(bundle.get())
                                                              factory:make];
  return std::static_pointer_cast<LayoutScreen>(retainedViewController(controller));
}

}  // namespace qv_commons::uikit
