#import "qv_commons/platform/uikit/uikit_mail.h"

#include <mutex>
#include <unordered_map>
#include <utility>

#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_view_controllers.h"

// Who composers report to where nothing of the platform's stands for the delegate.
@interface QV_MailComposeForwarder : NSObject <MFMailComposeViewControllerDelegate> {
 @public
  std::weak_ptr<qv_commons::MailComposeDelegate> delegate;
}
@end

@implementation QV_MailComposeForwarder
- (void)mailComposeController:(MFMailComposeViewController*)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)error {
  if (const std::shared_ptr<qv_commons::MailComposeDelegate> told = delegate.lock()) {
    qv_commons::uikit::reportFinish(*told, controller, result, error);
  }
}
@end

namespace qv_commons::uikit {
namespace {

using NativeDelegates =
    std::unordered_map<const MailComposeDelegate*, __weak id<MFMailComposeViewControllerDelegate>>;

// Guarded, as the shared helper may be made on any thread.
struct GuardedDelegates {
  std::mutex mutex;
  NativeDelegates delegates;
};

GuardedDelegates& nativeDelegates() {
  static auto* const delegates = new GuardedDelegates;
  return *delegates;
}

id<MFMailComposeViewControllerDelegate> nativeDelegateOf(const MailComposeDelegate* delegate) {
  const std::lock_guard guard(nativeDelegates().mutex);
  const auto found = nativeDelegates().delegates.find(delegate);
  return found == nativeDelegates().delegates.end() ? nil : found->second;
}

class Composer final : public NativeOf<MailComposer, UIKitController> {
 public:
  explicit Composer(MFMailComposeViewController* composer)
      : NativeOf(ViewControllerKind::navigation, composer) {}

  void setToRecipients(std::vector<std::string> recipients) override {
    [composer() setToRecipients:toNSArray(recipients)];
  }

  void setSubject(std::string subject) override { [composer() setSubject:toNSString(subject)]; }

  void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate> delegate) override {
    if (id<MFMailComposeViewControllerDelegate> native = nativeDelegateOf(delegate.lock().get())) {
      composer().mailComposeDelegate = native;
      return;
    }
    forwarder_ = [QV_MailComposeForwarder new];
    forwarder_->delegate = std::move(delegate);
    composer().mailComposeDelegate = forwarder_;
  }

  void setMessageBody(std::string body, bool isHTML) override {
    [composer() setMessageBody:toNSString(body) isHTML:isHTML];
  }

  void addAttachment(MailAttachment attachment) override {
    [composer() addAttachmentData:[NSData dataWithBytes:attachment.data.data()
                                                 length:attachment.data.size()]
                         mimeType:toNSString(attachment.mimeType)
                         fileName:toNSString(attachment.fileName)];
  }

 private:
  MFMailComposeViewController* composer() const {
    return static_cast<MFMailComposeViewController*>(uiViewController());
  }

  QV_MailComposeForwarder* forwarder_;  // composers don't keep their delegates
};

}  // namespace

std::shared_ptr<ViewController> makeComposer(MFMailComposeViewController* composer) {
  return std::make_shared<Composer>(composer);
}

void setNativeDelegate(const MailComposeDelegate& delegate,
                       id<MFMailComposeViewControllerDelegate> native) {
  const std::lock_guard guard(nativeDelegates().mutex);
  if (native == nil) {
    nativeDelegates().delegates.erase(&delegate);
  } else {
    nativeDelegates().delegates[&delegate] = native;
  }
}

void reportFinish(MailComposeDelegate& delegate, MFMailComposeViewController* composer,
                  MFMailComposeResult result, NSError* error) {
  delegate.mailComposeController(static_cast<MailComposer&>(*toViewController(composer)),
                                 static_cast<MailComposeResult>(result),
                                 toString(error.localizedDescription));
}

}  // namespace qv_commons::uikit
