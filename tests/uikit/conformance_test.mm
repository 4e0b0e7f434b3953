// The conformance suites over the iOS adapter.
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "qv_commons/platform/uikit/uikit_node.h"
#import "qv_commons/platform/uikit/uikit_platform.h"

#include "tests/conformance/bundle_resources_conformance.h"
#include "tests/conformance/calendar_conformance.h"
#include "tests/conformance/screens_conformance.h"
#include "tests/conformance/suites.h"
#include "tests/conformance/user_defaults_conformance.h"
#import "tests/uikit/age_gate_fixture.h"
#import "tests/uikit/folder_bundles.h"

namespace qv_commons::conformance {
namespace {

using uikit::retainedViewController;
using uikit::toUIViewController;

class UIKitAdapter final : public Adapter {
 public:
  void useMainBundle(const MainBundle& bundle) override {
    bundles_.writeInfo(bundle.info, bundle.identifier);
    standin::setReceiptURL(
        bundle.namesReceiptLocation ? [NSURL fileURLWithPath:@"/nowhere/StoreKit/receipt"] : nil);
  }
  void useSystemVersion(const OperatingSystemVersion& version) override {
    standin::setSystemVersion(version.majorVersion, version.minorVersion, version.patchVersion);
  }
  void useUserInterfaceStyle(UserInterfaceStyle style) override {
    standin::setUserInterfaceStyle(static_cast<UIUserInterfaceStyle>(style));
  }
  void useMail(bool available) override { standin::setCanSendMail(available); }

  const Platform& platform() override { return platform_; }

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

  std::shared_ptr<ViewController> makeScreen() override {
    return retainedViewController(standin::makeViewController(@"screen"));
  }
  std::shared_ptr<ViewController> makeRootScreen() override { return root_ = makeScreen(); }
  bool isOnScreen(ViewController& controller) override {
    return &controller == root_.get() ||
           toUIViewController(&controller).presentingViewController != nil;
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

  FolderBundles bundles_;
  const Platform platform_ = bundles_.over(uikit::platform());
  std::shared_ptr<ViewController> root_;
};

std::unique_ptr<Adapter> makeUIKitAdapter() {
  return std::make_unique<UIKitAdapter>();
}

QV_RUN_ALL_SUITES(UIKit, makeUIKitAdapter);

}  // namespace
}  // namespace qv_commons::conformance

namespace qv_commons::test {
namespace {

class UIKit {
 public:
  const Platform& platform() { return uikit::platform(); }
  UserDefaults& userDefaults() { return platform().userDefaults; }
  bool nextStartReads(const char* key) {
    return [NSUserDefaults.standardUserDefaults boolForKey:@(key)];
  }
  Calendar& calendar() { return platform().calendar; }
  Bundles& bundles() { return bundles_; }
  Files& files() { return platform().files; }
  void addToMainBundle(const std::string& name, const std::string& bytes) {
    bundles_.addToMainBundle(name, bytes);
  }

  std::shared_ptr<ViewController> makeHost() { return uikit::retainedViewController(home_); }
  bool pick(double birth) {
    top().datePicker.date = [NSDate dateWithTimeIntervalSince1970:birth];
    [top().datePicker sendActionsForControlEvents:UIControlEventValueChanged];
    return true;
  }
  bool tapConfirm() {
    const bool enabled = top().confirmBtn.enabled;
    [top().confirmBtn sendActionsForControlEvents:UIControlEventTouchUpInside];
    return enabled;
  }
  bool tapContactLink() {
    id refusal = home_.presentedViewController;
    return standin::tapLink([refusal contact], 38);
  }

 private:
  ::QV_AgeGateViewController* top() {
    return static_cast<::QV_AgeGateViewController*>(home_.presentedViewController);
  }

  UIViewController* home_ = standin::makeViewController(@"home");
  FolderBundles bundles_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(OfUIKit, UserDefaultsConformance, UIKit);
INSTANTIATE_TYPED_TEST_SUITE_P(OfUIKit, CalendarConformance, UIKit);
INSTANTIATE_TYPED_TEST_SUITE_P(OfUIKit, BundleResourcesConformance, UIKit);
INSTANTIATE_TYPED_TEST_SUITE_P(OfUIKit, ScreensConformance, UIKit);

}  // namespace
}  // namespace qv_commons::test
