// Whom mail composers report to.
#pragma once

#import <MessageUI/MessageUI.h>

#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::uikit {

// Says which object of the platform's stands for a delegate: composers report to it, and it is to
// pass that on with `reportFinish`. For a delegate without one they report to an object of the
// adapter's. nil ends it.
void setNativeDelegate(const MailComposeDelegate& delegate,
                       id<MFMailComposeViewControllerDelegate> native);

// Tells `delegate` how the user left `composer`.
void reportFinish(MailComposeDelegate& delegate, MFMailComposeViewController* composer,
                  MFMailComposeResult result, NSError* error);

}  // namespace qv_commons::uikit
