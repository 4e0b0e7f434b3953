// The support e-mail by its selectors, from the host's call to its delegate.
#include <thread>

#import "tests/uikit/support_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class UIKitSupport : public SupportTest {};

TEST_F(UIKitSupport, FillsAComposerAndPresentsIt) {
  standin::setScreenSize(NSMakeSize(375, 812));
  [NSUserDefaults setUserLanguages:@[ @"en-GB", @"de" ]];
  [helper contactSupportWithViewController:home
                                     email:@"support@example.com"
                                   subject:@"Help with Notes"
                                 purchases:@[ @"pro_monthly", @"remove_ads" ]
                            openingMessage:nil
                        additionalMetadata:@"User: 42"
                                  delegate:delegate];
  EXPECT_THAT(
      lines(),
      ElementsAre(
          "MFMailComposeViewController canSendMail",
          "MFMailComposeViewController setToRecipients:[support@example.com]",
          "MFMailComposeViewController setSubject:\"Help with Notes\"",
          "MFMailComposeViewController setMailComposeDelegate:QV_SupportHelper",
          "MFMailComposeViewController setMessageBody:187 units isHTML:0",
          "home presentViewController:MFMailComposeViewController animated:1 completion:nil"));
  EXPECT_OBJECT(standin::mailOf(composer()).body,
                @"Reason for contacting support:\n\n\n\n\n\n\n\n\n"
                @"App ID: com.example.notes\n"
                @"Device: iPhone os:  14.4 size: 375.0x812.0 locale: en-GB\n"
                @"App version: 2.4.1(317)\n"
                @"IAP: Yes pro_monthly, remove_ads\n"
                @"User: 42");
  EXPECT_EQ(composer().mailComposeDelegate, helper);
}

TEST_F(UIKitSupport, TellsTheDelegateOnceTheComposerIsGone) {
  for (const MFMailComposeResult result : {MFMailComposeResultCancelled, MFMailComposeResultSaved,
                                           MFMailComposeResultSent, MFMailComposeResultFailed}) {
    contact();
    lines();
    NSError* error = [NSError errorWithDomain:@"mail" code:1 userInfo:nil];
    standin::finishMail(composer(), result, result == MFMailComposeResultFailed ? error : nil);
    EXPECT_THAT(lines(), ElementsAre("MFMailComposeViewController dismissViewControllerAnimated:1 "
                                     "completion:block"));
    EXPECT_EQ(delegate.completions, 0);
    standin::finishTransitions();
    EXPECT_EQ(delegate.completions, 1);
    EXPECT_OBJECT(home.presentedViewController, nil);
    delegate.completions = 0;
  }
}

TEST_F(UIKitSupport, AttachesTheReceiptAsBase64) {
  NSString* path = [NSTemporaryDirectory() stringByAppendingPathComponent:@"qv receipt.bin"];
  ASSERT_TRUE([[NSData dataWithBytes:"\x00\xFF\x10\x80" length:4] writeToFile:path atomically:NO]);
  standin::setReceiptURL([NSURL fileURLWithPath:path]);
  contact();
  [NSFileManager.defaultManager removeItemAtPath:path error:nullptr];
  const standin::Mail& mail = standin::mailOf(composer());
  ASSERT_EQ(mail.attachments.size(), 1U);
  EXPECT_OBJECT(mail.attachments[0].data, [NSData dataWithBytes:"AP8QgA==" length:8]);
  EXPECT_OBJECT(mail.attachments[0].mimeType, @"Text/XML");
  EXPECT_OBJECT(mail.attachments[0].fileName, @"Receipt-Data.txt");
}

TEST_F(UIKitSupport, SaysOnTheConsoleThatTheReceiptCannotBeRead) {
  standin::setReceiptURL([NSURL fileURLWithPath:@"/nowhere/receipt"]);
  testing::internal::CaptureStdout();
  contact();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "error converting receipt to Data: The file “receipt” couldn’t be opened because there "
            "is no such file.\n");
  EXPECT_TRUE(standin::mailOf(composer()).attachments.empty());
}

TEST_F(UIKitSupport, ShowsAnAlertWhereNoMailCanBeSent) {
  standin::setCanSendMail(false);
  contact();
  EXPECT_THAT(
      lines(),
      ElementsAre("MFMailComposeViewController canSendMail",
                  "UIAlertController alertControllerWithTitle:\"Error\" message:\"Please "
                  "configure your email account in the Settings.\" preferredStyle:1",
                  "UIAlertController addAction:\"OK\" style:0 handler:nil",
                  "home presentViewController:UIAlertController animated:1 completion:nil"));
  auto* alert = static_cast<UIAlertController*>(home.presentedViewController);
  standin::tap(alert.actions[0]);
  standin::finishTransitions();
  EXPECT_OBJECT(home.presentedViewController, nil);
  EXPECT_EQ(delegate.completions, 0);
}

TEST_F(UIKitSupport, KeepsTheOpenRequestsDelegateWhereTheNextCannotBeSent) {
  contact();
  MFMailComposeViewController* open = composer();
  CountingDelegate* next = [CountingDelegate new];
  standin::setCanSendMail(false);
  [helper contactSupportWithViewController:home
                                     email:@""
                                   subject:@""
                                 purchases:@[]
                            openingMessage:nil
                        additionalMetadata:nil
                                  delegate:next];
  finish(open);
  EXPECT_EQ(delegate.completions, 1);
  EXPECT_EQ(next.completions, 0);
}

TEST_F(UIKitSupport, HasOneSlotWhichTheSecondRequestTakes) {
  contact();
  MFMailComposeViewController* first = composer();
  CountingDelegate* second = [CountingDelegate new];
  [helper contactSupportWithViewController:first
                                     email:@""
                                   subject:@""
                                 purchases:@[]
                            openingMessage:nil
                        additionalMetadata:nil
                                  delegate:second];
  auto* onTop = static_cast<MFMailComposeViewController*>(first.presentedViewController);
  finish(onTop);
  EXPECT_EQ(second.completions, 1);
  finish(first);
  EXPECT_EQ(second.completions, 1);
  EXPECT_EQ(delegate.completions, 0);
}

TEST_F(UIKitSupport, HasOneSharedInstanceAndASlotForEachOther) {
  EXPECT_EQ(QV_SupportHelper.shared, QV_SupportHelper.shared);
  EXPECT_NE(QV_SupportHelper.shared, helper);
  [QV_SupportHelper.shared contactSupportWithViewController:home
                                                      email:@""
                                                    subject:@""
                                                  purchases:@[]
                                             openingMessage:nil
                                         additionalMetadata:nil
                                                   delegate:delegate];
  EXPECT_EQ(composer().mailComposeDelegate, QV_SupportHelper.shared);
  finish(composer());
  EXPECT_EQ(delegate.completions, 1);
}

TEST_F(UIKitSupport, MakesTheSharedInstanceOnceThoughSeveralThreadsAskFirst) {
  std::vector<QV_SupportHelper*> seen(8);
  std::vector<std::thread> threads;
  for (auto& mine : seen) {
    threads.emplace_back([&mine] {
      @autoreleasepool {
        mine = QV_SupportHelper.shared;
      }
    });
  }
  for (std::thread& each : threads) each.join();
  EXPECT_THAT(seen, testing::Each(QV_SupportHelper.shared));
}

TEST_F(UIKitSupport, SkipsADelegateReleasedBeforeTheDismissal) {
  contact();
  MFMailComposeViewController* open = composer();
  delegate = nil;
  finish(open);
  EXPECT_OBJECT(home.presentedViewController, nil);
}

TEST_F(UIKitSupport, SkipsADelegateReleasedInTheMiddleOfTheDismissal) {
  __block int completions = 0;
  @autoreleasepool {
    contact();
    delegate.onEnd = ^{
      ++completions;
    };
    standin::finishMail(composer(), MFMailComposeResultSent, nil);
    delegate = nil;
  }
  EXPECT_EQ(standin::waitingTransitions(), 1U);
  standin::finishTransitions();
  EXPECT_EQ(completions, 0);
  EXPECT_OBJECT(home.presentedViewController, nil);
}

TEST_F(UIKitSupport, DoesNotKeepItsDelegate) {
  __weak CountingDelegate* gone;
  @autoreleasepool {
    contact();
    gone = delegate;
    delegate = nil;
  }
  EXPECT_OBJECT(gone, nil);
}

TEST_F(UIKitSupport, SurvivesADelegateThatReleasesItselfWhenItIsTold) {
  @autoreleasepool {
    contact();
    delegate.onEnd = ^{
      this->delegate = nil;
    };
    finish(composer());
  }
  EXPECT_OBJECT(delegate, nil);
}

TEST_F(UIKitSupport, TellsTheDelegateAlsoWhereTheHelperGoesInTheMiddleOfTheDismissal) {
  @autoreleasepool {
    contact();
    standin::finishMail(composer(), MFMailComposeResultSent, nil);
    helper = nil;
  }
  standin::finishTransitions();
  EXPECT_EQ(delegate.completions, 1);
}

TEST_F(UIKitSupport, LeavesNothingBehind) {
  __weak id gone[3];
  @autoreleasepool {
    home = standin::makeViewController(@"home");
    contact();
    gone[0] = composer();
    gone[1] = helper;
    gone[2] = home;
    finish(composer());
    helper = nil;
    home = nil;
  }
  for (const auto& each : gone) EXPECT_OBJECT(each, nil);
}

}  // namespace
