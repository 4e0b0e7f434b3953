// The conformance suites over the iOS adapter.
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_platform.h"

#include "tests/conformance/suites.h"
#import "tests/uikit/age_gate_fixture.h"
#import "tests/uikit/folder_bundles.h"

namespace qv_commons::conformance {
namespace {

using uikit::retainedViewController;
using uikit::toUIViewController;

class UIKitAdapter final : public Adapter {
 public:
  void useMainBundle(const MainBundle& bundle) override {
    bundles_.writeInfo(bundle.texts, bundle.numbers, bundle.identifier);
    standin::setReceiptURL(
        bundle.namesReceiptLocation ? [NSURL fileURLWithPath:@"/nowhere/StoreKit/receipt"] : nil);
  }
  void useSystemVersion(int major) override { standin::setSystemVersion(major, 9, 0); }
  void useUserInterfaceStyle(UserInterfaceStyle style) override {
    standin::setUserInterfaceStyle(static_cast<UIUserInterfaceStyle>(style));
  }
  void useMail(bool available) override { standin::setCanSendMail(available); }

  const Platform& platform() override { return platform_; }

  void addToMainBundle(const std::string& name, const std::string& bytes) override {
    bundles_.addToMainBundle(name, bytes);
  }

  FileLocation makeFile(const std::string& bytes) override {
    return bundles_.addToMainBundle("file", bytes);
  }
  FileLocation makeFolder() override { return bundles_.location(""); }
  FileLocation missingFile() override { return bundles_.location("missing"); }

  std::vector<std::string> printedBy(const std::function<void()>& act) override {
    testing::internal::CaptureStdout();
    act();
    std::istringstream printed(testing::internal::GetCapturedStdout());
    std::vector<std::string> lines;
    for (std::string line; std::getline(printed, line);) lines.push_back(line);
    return lines;
  }
  std::vector<std::string> openedBy(const std::function<void()>& act) override {
    act();
    std::vector<std::string> opened;
    for (NSURL* url in standin::openedURLs()) opened.push_back(url.absoluteString.UTF8String);
    return opened;
  }

  bool nextStartReads(const char* key) override {
    return [NSUserDefaults.standardUserDefaults boolForKey:@(key)];
  }

  std::shared_ptr<ViewController> makeScreen() override {
    return retainedViewController(standin::makeViewController(@"screen"));
  }
  std::shared_ptr<ViewController> makeRootScreen() override {
    root_ = standin::makeViewController(@"root");
    return retainedViewController(root_);
  }
  bool isOnScreen(ViewController& controller) override {
    UIViewController* native = toUIViewController(&controller);
    return native == root_ || native.presentingViewController != nil;
  }
  std::function<bool()> watch(const std::shared_ptr<ViewController>& screen) override {
    __weak UIViewController* observed = toUIViewController(screen.get());
    return [observed] {
      @autoreleasepool {
        return observed != nil;
      }
    };
  }

  void settle() override {
    standin::finishTransitions();
    endTurnOfRunLoop();
  }
  void leave(ViewController& controller) override {
    standin::swipeAway(toUIViewController(&controller));
  }
  void tap(AlertController& alert, std::size_t button) override {
    standin::tap(static_cast<UIAlertController*>(toUIViewController(&alert)).actions[button]);
  }
  bool pick(Instant birth) override {
    UIDatePicker* picker = [static_cast<::QV_AgeGateViewController*>(top()) datePicker];
    picker.date = [NSDate dateWithTimeIntervalSince1970:secondsSince1970(birth)];
    [picker sendActionsForControlEvents:UIControlEventValueChanged];
    return true;
  }
  bool tapConfirm() override {
    UIButton* button = [static_cast<::QV_AgeGateViewController*>(top()) confirmBtn];
    const bool enabled = button.enabled;
    [button sendActionsForControlEvents:UIControlEventTouchUpInside];
    return enabled;
  }
  bool tapContactLink() override {
    return standin::tapLink([static_cast<::QV_AgeGateRefusedViewController*>(top()) contact], 38);
  }
  ShownMessage shown(MailComposer& composer) override {
    const standin::Mail& mail = standin::mailOf(native(composer));
    ShownMessage shown{[mail.toRecipients componentsJoinedByString:@", "].UTF8String,
                       mail.subject.UTF8String,
                       mail.body.UTF8String,
                       {}};
    for (const auto& attachment : mail.attachments) {
      shown.attachmentNames.push_back(attachment.fileName.UTF8String);
    }
    return shown;
  }
  void finish(MailComposer& composer, MailComposeResult how) override {
    standin::finishMail(native(composer), static_cast<MFMailComposeResult>(how), nil);
  }

 private:
  static MFMailComposeViewController* native(MailComposer& composer) {
    return static_cast<MFMailComposeViewController*>(toUIViewController(&composer));
  }

  UIViewController* top() const { return root_.presentedViewController; }

  FolderBundles bundles_;
  const Platform platform_ = bundles_.over(uikit::platform());
  UIViewController* root_ = nil;
};

std::unique_ptr<Adapter> makeUIKitAdapter() {
  return std::make_unique<UIKitAdapter>();
}

QV_RUN_ALL_SUITES(UIKit, makeUIKitAdapter);

}  // namespace
}  // namespace qv_commons::conformance
