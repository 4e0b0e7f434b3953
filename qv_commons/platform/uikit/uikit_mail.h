// The mail composer by MFMailComposeViewController.
#pragma once

#import <MessageUI/MessageUI.h>

#include "qv_commons/platform/mail_composer.h"
#import "qv_commons/platform/uikit/uikit_node.h"

namespace qv_commons::uikit {

class UIKitMailComposers final : public MailComposers {
 public:
  bool canSendMail() const override;
  std::shared_ptr<MailComposer> makeMailComposer() override;
};

std::shared_ptr<UIKitNode> makeMailNode(MFMailComposeViewController* composer);

// Says which object of the platform's stands for a delegate: composers report to it, and it is to
// pass that on with `reportFinish`. For a delegate without one they report to an object of the
// adapter's. nil ends it.
void setNativeDelegate(const MailComposeDelegate& delegate,
                       id<MFMailComposeViewControllerDelegate> native);

// Tells `delegate` how the user left `composer`.
void reportFinish(MailComposeDelegate& delegate, MFMailComposeViewController* composer,
                  MFMailComposeResult result, NSError* error);

}  // namespace qv_commons::uikit
