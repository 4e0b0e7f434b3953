#include "qv_commons/support/support_helper.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <thread>
#include <vector>

#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons {
namespace {

using memory::MemoryController;
using Lines = std::vector<std::string>;

struct Host : QV_SupportHelperDelegate {
  int calls = 0;
  std::function<void()> onCall;
  void onCompletion() override {
    ++calls;
    if (onCall) onCall();
  }
};

class SupportHelper : public testing::Test {
 protected:
  memory::MemoryPlatform memory;
  ScopedPlatform scope{memory.platform()};
  std::shared_ptr<ViewController> home = memory.makeViewController("home");
  std::shared_ptr<QV_SupportHelper> helper = QV_SupportHelper::create();
  std::shared_ptr<Host> host = std::make_shared<Host>();

  void contact(std::weak_ptr<QV_SupportHelperDelegate> delegate) {
    helper->contactSupport(*home, "support@example.com", "Help", {}, std::nullopt, std::nullopt,
                           std::move(delegate));
  }
  memory::MemoryMailComposer& composer(std::size_t index) {
    return *memory.viewControllers().composers().at(index);
  }
};

TEST_F(SupportHelper, DoesAllInOrder) {
  memory.mainBundle().receiptLocation = "receipt";
  memory.bundles().files["receipt"] = {"receipt\n", ""};
  contact(host);
  EXPECT_EQ(memory.record().lines(),
            (Lines{
                "viewControllers.canSendMail",
                "viewControllers.makeMailComposer composer1",
                "composer1.setToRecipients \"support@example.com\"",
                "composer1.setSubject \"Help\"",
                "composer1.setMailComposeDelegate",
                "mainBundle.bundleIdentifier",
                "device.localizedModel",
                "device.systemVersion",
                "device.screenBounds",
                "device.preferredLanguages",
                "mainBundle.textForInfoDictionaryKey CFBundleShortVersionString",
                "mainBundle.textForInfoDictionaryKey CFBundleVersion",
                "composer1.setMessageBody 130 bytes, plain text",
                "mainBundle.appStoreReceiptURL",
                "bundles.read receipt",
                "composer1.addAttachment \"Receipt-Data.txt\" Text/XML 12 bytes",
                "home.presentViewController composer1 animated, no completion",
            }));
  EXPECT_TRUE(composer(0).isOnScreen());

  memory.record().clear();
  composer(0).finish(MailComposeResult::sent);
  EXPECT_EQ(memory.record().lines(),
            (Lines{"composer1.dismissViewController animated, with completion"}));
  EXPECT_FALSE(composer(0).isOnScreen());
  EXPECT_EQ(host->calls, 1);
}

TEST_F(SupportHelper, FillsTheComposer) {
  memory.mainBundle().identifier = "notesapp";
  memory.mainBundle().info["CFBundleShortVersionString"] = "2.4.1";
  memory.mainBundle().info["CFBundleVersion"] = "317";
  memory.mainBundle().receiptLocation = "receipt";
  memory.bundles().files["receipt"] = {"receipt\n", ""};
  memory.device().screenSize = {375, 812};
  memory.device().languages = {"en-GB", "de-DE"};
  helper->contactSupport(*home, " Support <support@example.com> ", "Caf\xC3\xA9", {"pro", "ads"},
                         "Hello", "User: 42", host);
  const auto& message = composer(0).message();
  EXPECT_EQ(message.toRecipients, (Lines{" Support <support@example.com> "}));
  EXPECT_EQ(message.subject, "Caf\xC3\xA9");
  EXPECT_FALSE(message.isHTML);
  EXPECT_EQ(message.body,
            "Hello\n\n\n\n\n\n\n\n\nApp ID: notesapp\n"
            "Device: iPhone os:  14.4 size: 375.0x812.0 locale: en-GB\n"
            "App version: 2.4.1(317)\nIAP: Yes pro, ads\nUser: 42");
  ASSERT_EQ(message.attachments.size(), 1u);
  EXPECT_EQ(message.attachments[0].data, "cmVjZWlwdAo=");
  EXPECT_EQ(message.attachments[0].mimeType, "Text/XML");
  EXPECT_EQ(message.attachments[0].fileName, "Receipt-Data.txt");
}

TEST_F(SupportHelper, LeavesEmptyWhatIsMissing) {
  memory.device().languages = {};
  contact(host);
  EXPECT_EQ(composer(0).message().body,
            "Reason for contacting support:\n\n\n\n\n\n\n\n\nApp ID: \n"
            "Device: iPhone os:  14.4 size: 375.0x667.0 locale: \nApp version: ()\nIAP: No \n");
}

TEST_F(SupportHelper, ShowsAnAlertIfNoMailCanBeSent) {
  memory.viewControllers().mailAvailable = false;
  contact(host);
  EXPECT_EQ(memory.record().lines(),
            (Lines{
                "viewControllers.canSendMail",
                "viewControllers.makeAlertController alert1 \"Error\" "
                "\"Please configure your email account in the Settings.\" alert",
                "alert1.addAction \"OK\" default, no handler",
                "home.presentViewController alert1 animated, no completion",
            }));
  memory.viewControllers().alerts().at(0)->tap(0);
  EXPECT_FALSE(memory.viewControllers().alerts().at(0)->isOnScreen());
  EXPECT_EQ(helper->delegate(), nullptr);
  EXPECT_EQ(host->calls, 0);
}

TEST_F(SupportHelper, KeepsTheEarlierDelegateIfNoMailCanBeSent) {
  contact(host);
  memory.viewControllers().mailAvailable = false;
  contact(std::make_shared<Host>());
  EXPECT_EQ(helper->delegate(), host);
}

TEST_F(SupportHelper, AttachesNothingIfThereIsNoReceiptLocation) {
  contact(host);
  EXPECT_TRUE(composer(0).message().attachments.empty());
  EXPECT_TRUE(memory.application().printed.empty());
}

TEST_F(SupportHelper, PrintsWhyAReceiptCannotBeReadAndGoesOn) {
  memory.mainBundle().receiptLocation = "receipt";
  memory.bundles().files["receipt"] = {std::nullopt, "Is a directory"};
  contact(host);
  EXPECT_EQ(memory.application().printed,
            (Lines{"error converting receipt to Data: Is a directory"}));
  EXPECT_TRUE(composer(0).message().attachments.empty());
  EXPECT_TRUE(composer(0).isOnScreen());
}

TEST_F(SupportHelper, AttachesAnEmptyReceiptAsAnEmptyFile) {
  memory.mainBundle().receiptLocation = "receipt";
  memory.bundles().files["receipt"] = {"", ""};
  contact(host);
  ASSERT_EQ(composer(0).message().attachments.size(), 1u);
  EXPECT_EQ(composer(0).message().attachments[0].data, "");
}

// A composer that has what is attached prepared later, as one does that is on the screen meanwhile.
class LateComposer final : public NativeOf<MailComposer, MemoryController> {
 public:
  using NativeOf::NativeOf;

  void setToRecipients(std::vector<std::string>) override {}
  void setSubject(std::string) override {}
  void setMailComposeDelegate(std::weak_ptr<MailComposeDelegate>) override {}
  void setMessageBody(std::string, bool) override {}
  void addAttachment(MailAttachment attachment) override {
    attachments.push_back(std::move(attachment));
  }
  void prepare(const std::function<void()>& newWork,
               const std::function<void()>& newDone) override {
    EXPECT_FALSE(isOnScreen());
    work = newWork;
    done = newDone;
  }

  std::vector<MailAttachment> attachments;
  std::function<void()> work;
  std::function<void()> done;
};

class LateSupportHelper : public SupportHelper, private ViewControllers {
 protected:
  bool canSendMail() const override { return true; }
  std::shared_ptr<MailComposer> makeMailComposer() override { return late; }
  std::shared_ptr<AlertController> makeAlertController(std::string, std::string,
                                                       AlertStyle) override {
    return nullptr;
  }
  std::shared_ptr<LayoutScreen> initWithNibName(std::string_view, std::shared_ptr<Bundle>,
                                                const LayoutScreenFactory&) override {
    return nullptr;
  }

  bool hasRead() {
    const Lines& lines = memory.record().lines();
    return std::find(lines.begin(), lines.end(), "bundles.read receipt") != lines.end();
  }

  std::shared_ptr<LateComposer> late =
      std::make_shared<LateComposer>(memory.record(), memory.transitions(), "late");
  const Platform& rest = memory.platform();
  const Platform platform = {rest.bundles,      rest.device,      rest.clock, rest.calendar,
                             rest.userDefaults, rest.application, *this};
  ScopedPlatform lateScope{platform};
};

TEST_F(LateSupportHelper, ReadsTheReceiptInTheWorkAndAttachesItWhenThatIsDone) {
  memory.mainBundle().receiptLocation = "receipt";
  memory.bundles().files["receipt"] = {"receipt\n", ""};
  contact(host);
  ASSERT_TRUE(late->work);
  EXPECT_TRUE(late->isOnScreen());
  EXPECT_FALSE(hasRead());
  late->work();
  EXPECT_TRUE(hasRead());
  EXPECT_TRUE(late->attachments.empty());
  late->done();
  ASSERT_EQ(late->attachments.size(), 1u);
  EXPECT_EQ(late->attachments[0].data, "cmVjZWlwdAo=");
  EXPECT_EQ(late->attachments[0].fileName, "Receipt-Data.txt");
}

TEST_F(LateSupportHelper, PrintsOnlyWhenTheWorkIsDone) {
  memory.mainBundle().receiptLocation = "receipt";
  memory.bundles().files["receipt"] = {std::nullopt, "Is a directory"};
  contact(host);
  late->work();
  EXPECT_TRUE(memory.application().printed.empty());
  late->done();
  EXPECT_EQ(memory.application().printed,
            (Lines{"error converting receipt to Data: Is a directory"}));
  EXPECT_TRUE(late->attachments.empty());
}

TEST_F(LateSupportHelper, PreparesNothingIfThereIsNoReceiptLocation) {
  contact(host);
  EXPECT_FALSE(late->work);
}

TEST_F(SupportHelper, CallsTheDelegateOnceWhateverTheOutcome) {
  for (auto result : {MailComposeResult::cancelled, MailComposeResult::saved,
                      MailComposeResult::sent, MailComposeResult::failed}) {
    const int before = host->calls;
    contact(host);
    memory.viewControllers().composers().back()->finish(result, "an error");
    EXPECT_EQ(host->calls, before + 1);
    EXPECT_EQ(helper->delegate(), nullptr);
  }
}

TEST_F(SupportHelper, CallsTheDelegateOnlyAfterTheComposerIsGone) {
  memory.transitions().setByHand(true);
  contact(host);
  composer(0).finish(MailComposeResult::sent);
  EXPECT_EQ(host->calls, 0);
  EXPECT_EQ(helper->delegate(), host);
  memory.transitions().runNext();
  EXPECT_EQ(host->calls, 1);
  EXPECT_EQ(helper->delegate(), nullptr);
}

TEST_F(SupportHelper, SkipsADelegateThatHasExpired) {
  memory.transitions().setByHand(true);
  contact(host);
  composer(0).finish(MailComposeResult::sent);
  std::weak_ptr<Host> released = host;
  host.reset();
  EXPECT_TRUE(released.expired()) << "the helper must not keep the delegate alive";
  memory.transitions().runAll();
  EXPECT_FALSE(composer(0).isOnScreen());
}

TEST_F(SupportHelper, WorksWithoutADelegate) {
  contact(host);
  contact({});
  EXPECT_EQ(helper->delegate(), nullptr);
  composer(1).finish(MailComposeResult::cancelled);
  EXPECT_EQ(host->calls, 0);
  EXPECT_FALSE(composer(1).isOnScreen());
}

TEST_F(SupportHelper, CallsNobodyAtASecondFinish) {
  contact(host);
  composer(0).finish(MailComposeResult::sent);
  composer(0).finish(MailComposeResult::sent);
  EXPECT_EQ(host->calls, 1);
}

TEST_F(SupportHelper, CallsTheSecondRequestsDelegateAtTheFirstFinish) {
  const auto second = std::make_shared<Host>();
  contact(host);
  contact(second);
  composer(0).finish(MailComposeResult::sent);
  EXPECT_EQ(host->calls, 0);
  EXPECT_EQ(second->calls, 1);
  EXPECT_FALSE(composer(0).isOnScreen());
  EXPECT_TRUE(composer(1).isOnScreen());

  composer(1).finish(MailComposeResult::sent);
  EXPECT_EQ(host->calls, 0);
  EXPECT_EQ(second->calls, 1);
  EXPECT_FALSE(composer(1).isOnScreen());
}

TEST_F(SupportHelper, EmptiesTheSlotAfterTheDelegateWasCalled) {
  const auto second = std::make_shared<Host>();
  host->onCall = [&] {
    EXPECT_EQ(helper->delegate(), host);
    contact(second);
  };
  contact(host);
  composer(0).finish(MailComposeResult::sent);
  EXPECT_EQ(helper->delegate(), nullptr);
  composer(1).finish(MailComposeResult::sent);
  EXPECT_EQ(second->calls, 0);
}

TEST_F(SupportHelper, GivesEachInstanceASlotOfItsOwn) {
  const auto other = QV_SupportHelper::create();
  contact(host);
  EXPECT_EQ(other->delegate(), nullptr);
  other->contactSupport(*home, "a@example.com", "", {}, std::nullopt, std::nullopt, {});
  EXPECT_EQ(helper->delegate(), host);
}

TEST_F(SupportHelper, LivesUntilTheDismissalIsDone) {
  memory.transitions().setByHand(true);
  contact(host);
  composer(0).finish(MailComposeResult::sent);
  helper.reset();
  memory.transitions().runAll();
  EXPECT_EQ(host->calls, 1);
}

TEST_F(SupportHelper, FollowsAScriptedOutcome) {
  memory.viewControllers().mailOutcome = MailComposeResult::cancelled;
  contact(host);
  EXPECT_EQ(host->calls, 1);
  EXPECT_FALSE(composer(0).isOnScreen());
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(SupportHelper, PassesOnInputsUnchecked) {
  helper->contactSupport(*home, "a\r\nBcc: b@example.com", "x\ny", {}, std::nullopt, std::nullopt,
                         host);
  EXPECT_EQ(composer(0).message().toRecipients, (Lines{"a\r\nBcc: b@example.com"}));
  EXPECT_EQ(composer(0).message().subject, "x\ny");
}

TEST(SharedSupportHelper, IsOneInstanceUnderConcurrentFirstAccess) {
  std::vector<QV_SupportHelper*> seen(16);
  std::vector<std::thread> threads;
  for (auto& slot : seen) {
    threads.emplace_back([&slot] { slot = &QV_SupportHelper::shared(); });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(std::set(seen.begin(), seen.end()).size(), 1u);
  EXPECT_EQ(QV_SupportHelper::shared().delegate(), nullptr);
}

// A composer may report to the shared instance from a destructor that runs as the process ends.
struct UsesSharedAtTheVeryEnd {
  ~UsesSharedAtTheVeryEnd() {
    if (QV_SupportHelper::shared().delegate() != nullptr) std::abort();
    std::fprintf(stderr, "still there\n");
  }
};

TEST(SharedSupportHelper, IsNeverDestroyed) {
  EXPECT_EXIT(
      {
        static UsesSharedAtTheVeryEnd atExit;  // made before the instance, destroyed after statics
        QV_SupportHelper::shared();
        std::exit(0);
      },
      testing::ExitedWithCode(0), "still there");
}

}  // namespace
}  // namespace qv_commons
