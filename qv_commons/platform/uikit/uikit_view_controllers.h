// The screens that the platform makes: UIAlertController, MFMailComposeViewController, and the
// library's own from their layouts.
#pragma once

#import <MessageUI/MessageUI.h>
#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/view_controllers.h"

namespace qv_commons::uikit {

class UIKitViewControllers final : public ViewControllers {
 public:
  bool canSendMail() const override;
  std::shared_ptr<MailComposer> makeMailComposer() override;
  std::shared_ptr<AlertController> makeAlertController(std::string title, std::string message,
                                                       AlertStyle preferredStyle) override;
  std::shared_ptr<LayoutScreen> initWithNibName(std::string_view name,
                                                std::shared_ptr<Bundle> bundle,
                                                const LayoutScreenFactory& make) override;
};

// The library's controllers for these two of UIKit's.
std::shared_ptr<ViewController> makeAlert(UIAlertController* alert);
std::shared_ptr<ViewController> makeComposer(MFMailComposeViewController* composer);

}  // namespace qv_commons::uikit
