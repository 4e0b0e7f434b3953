// The library's enumerations bear the platform's own numbers, and the adapter casts between them.
#import <MessageUI/MessageUI.h>
#import <UIKit/UIKit.h>

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/mail_composer.h"
#include "qv_commons/platform/user_interface_style.h"
#include "qv_commons/platform/views.h"

namespace qv_commons::uikit {
namespace {

template <class Platform, class Ours>
constexpr bool same(Platform platform, Ours ours) {
  return static_cast<long>(platform) == static_cast<long>(ours);
}

static_assert(same(UIControlStateNormal, ControlState::normal) &&
              same(UIControlStateDisabled, ControlState::disabled));
static_assert(same(UIAlertActionStyleDefault, AlertActionStyle::standard) &&
              same(UIAlertActionStyleCancel, AlertActionStyle::cancel) &&
              same(UIAlertActionStyleDestructive, AlertActionStyle::destructive));
static_assert(same(UIAlertControllerStyleActionSheet, AlertStyle::actionSheet) &&
              same(UIAlertControllerStyleAlert, AlertStyle::alert));
static_assert(same(MFMailComposeResultCancelled, MailComposeResult::cancelled) &&
              same(MFMailComposeResultSaved, MailComposeResult::saved) &&
              same(MFMailComposeResultSent, MailComposeResult::sent) &&
              same(MFMailComposeResultFailed, MailComposeResult::failed));

[[maybe_unused]] API_AVAILABLE(ios(12.0)) void checkInterfaceStyles() {
  static_assert(same(UIUserInterfaceStyleUnspecified, UserInterfaceStyle::unspecified) &&
                same(UIUserInterfaceStyleLight, UserInterfaceStyle::light) &&
                same(UIUserInterfaceStyleDark, UserInterfaceStyle::dark));
}

}  // namespace
}  // namespace qv_commons::uikit
