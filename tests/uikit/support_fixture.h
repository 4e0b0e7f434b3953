// A host of the support e-mail.
#pragma once

#import "tests/uikit/uikit_test.h"

@interface CountingDelegate : NSObject <QV_SupportHelperDelegate>
@property(nonatomic) int completions;
@property(nonatomic, copy) void (^onEnd)(void);  // called with each
@end

class SupportTest : public UIKitTest {
 protected:
  MFMailComposeViewController* composer() const {
    return static_cast<MFMailComposeViewController*>(home.presentedViewController);
  }

  void contact() {
    [helper contactSupportWithViewController:home
                                       email:@"support@example.com"
                                     subject:@"Help"
                                   purchases:@[]
                              openingMessage:nil
                          additionalMetadata:nil
                                    delegate:delegate];
    standin::finishTransitions();
  }

  static void finish(MFMailComposeViewController* composer) {
    standin::finishMail(composer, MFMailComposeResultSent, nil);
    standin::finishTransitions();
  }

  QV_SupportHelper* helper = [QV_SupportHelper new];
  CountingDelegate* delegate = [CountingDelegate new];
};
