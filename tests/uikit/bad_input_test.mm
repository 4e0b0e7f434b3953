// What hosts hand in that is missing, empty, malformed or gone.
#import "tests/uikit/age_gate_fixture.h"
#import "tests/uikit/support_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Hidden from the compiler, which would refuse it where null is not allowed.
template <class Type>
Type* none() {
  Type* nothing = nil;
  return nothing;
}

id linkAt(UITextView* textView, NSUInteger index) {
  return [textView.attributedText attribute:NSLinkAttributeName
                                    atIndex:index
                             effectiveRange:nullptr];
}

class BadInputOfTheAgeGate : public AgeGateTest {
 protected:
  void startWith(NSString* privacyLink, NSString* termsOfServiceLink) {
    [QV_AgeGateHelper startAgeGateProcessWithViewController:home
                                         minimumAgeRequired:18
                                                 completion:nil
                                           contactUsHandler:nil
                                                 colorTheme:makeTheme()
                                                privacyLink:privacyLink
                                         termsOfServiceLink:termsOfServiceLink];
  }

  void refuseBefore() {
    setFlag(@"QV_AgeGate_Shown");
    setFlag(@"QV_AgeGate_Blocked");
  }
};

TEST_F(BadInputOfTheAgeGate, NoCompletionIsSkipped) {
  setFlag(@"QV_AgeGate_Shown");
  startWith(@"", @"");
  EXPECT_THAT(lines(), IsEmpty());
  standin::reset();
  startWith(@"", @"");
  pick(gate(), kEighteenYearsAgo);
  confirm(gate());
  EXPECT_TRUE(flag(@"QV_AgeGate_Shown"));
}

TEST_F(BadInputOfTheAgeGate, NoContactHandlerMakesTheContactLinkDoNothing) {
  refuseBefore();
  startWith(@"", @"");
  lines();
  EXPECT_TRUE(standin::tapLink(refusal().contact, 38));
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(BadInputOfTheAgeGate, NilLinksAreEmptyOnes) {
  startWith(none<NSString>(), none<NSString>());
  EXPECT_OBJECT(linkAt(gate().tos, 0), @"");
  EXPECT_OBJECT(linkAt(gate().tos, 17), @"");
}

TEST_F(BadInputOfTheAgeGate, LinksAreKeptAsTheTextsTheyAre) {
  startWith(@"no url at all \"<>", @"👩‍🚀\0é");
  EXPECT_OBJECT(linkAt(gate().tos, 13), @"no url at all \"<>");
  EXPECT_OBJECT(linkAt(gate().tos, 32), @"👩‍🚀\0é");
  EXPECT_OBJECT(linkAt(gate().tos, 14), nil);
}

TEST_F(BadInputOfTheAgeGate, HalfACharacterBecomesTheReplacementCharacter) {
  startWith(fromUnits({'a', 0xD83D, 'b'}), @"");
  EXPECT_OBJECT(linkAt(gate().tos, 0), @"a\uFFFDb");
}

TEST_F(BadInputOfTheAgeGate, EveryMinimumAgeIsTaken) {
  start(INT64_MIN);
  pick(gate(), 1700000000 + kDay);
  confirm(gate());
  EXPECT_EQ(completions, 1);
  standin::reset();
  start(INT64_MAX);
  pick(gate(), -62135596800);  // the year 1
  confirm(gate());
  EXPECT_TRUE(flag(@"QV_AgeGate_Blocked"));
}

TEST_F(BadInputOfTheAgeGate, NoHostsScreenIsAFatalError) {
  home = nil;
  EXPECT_DEATH(start(), "QV_Commons fatal error: QV_AgeGateHelper");
}

TEST_F(BadInputOfTheAgeGate, NoThemeIsAFatalError) {
  EXPECT_DEATH([QV_AgeGateHelper startAgeGateProcessWithViewController:home
                                                    minimumAgeRequired:18
                                                            completion:nil
                                                      contactUsHandler:nil
                                                            colorTheme:none<QV_AgeGateColorTheme>()
                                                           privacyLink:@""
                                                    termsOfServiceLink:@""],
               "QV_Commons fatal error: QV_AgeGateHelper");
}

TEST_F(BadInputOfTheAgeGate, FlagsOfAnotherTypeAreReadAsThePlatformReadsThem) {
  NSUserDefaults* defaults = NSUserDefaults.standardUserDefaults;
  for (id yes in @[ @1, @(-3), @0.5, @"YES", @"true", @"1" ]) {
    [defaults setObject:yes forKey:@"QV_AgeGate_Shown"];
    completions = 0;
    start();
    EXPECT_EQ(completions, 1) << describeObject(yes);
  }
  for (id no in @[ @0, @"NO", @"", @"0", @"of age", @[ @YES ], @{@"a" : @YES} ]) {
    [defaults setObject:no forKey:@"QV_AgeGate_Shown"];
    home = standin::makeViewController(@"home");
    start();
    EXPECT_TRUE([gate() isKindOfClass:[QV_AgeGateViewController class]]) << describeObject(no);
  }
}

TEST_F(BadInputOfTheAgeGate, AFlagOfAnotherTypeIsReplacedWhenTheUserConfirms) {
  [NSUserDefaults.standardUserDefaults setObject:@"of age" forKey:@"QV_AgeGate_Shown"];
  start();
  pick(gate(), kEighteenYearsAgo);
  confirm(gate());
  EXPECT_OBJECT([NSUserDefaults.standardUserDefaults objectForKey:@"QV_AgeGate_Shown"], @YES);
}

TEST_F(BadInputOfTheAgeGate, ABlockMayLetGoOfItsOwner) {
  NSMutableArray* told = [NSMutableArray array];
  __weak id screen;
  @autoreleasepool {
    home = standin::makeViewController(@"home");
    [QV_AgeGateHelper startAgeGateProcessWithViewController:home
                                         minimumAgeRequired:18
                                                 completion:^{
                                                   home = nil;
                                                   standin::finishTransitions();
                                                   [told addObject:@"through"];
                                                 }
                                           contactUsHandler:nil
                                                 colorTheme:makeTheme()
                                                privacyLink:@""
                                         termsOfServiceLink:@""];
    screen = gate();
    pick(screen, kEighteenYearsAgo);
    confirm(screen);
  }
  EXPECT_OBJECT(told, @[ @"through" ]);
  EXPECT_OBJECT(screen, nil);
}

TEST_F(BadInputOfTheAgeGate, AContactHandlerMayLetGoOfTheRefusal) {
  refuseBefore();
  NSMutableArray* told = [NSMutableArray array];
  __weak id screen;
  @autoreleasepool {
    home = standin::makeViewController(@"home");
    [QV_AgeGateHelper startAgeGateProcessWithViewController:home
                                         minimumAgeRequired:18
                                                 completion:nil
                                           contactUsHandler:^(UIViewController* refused) {
                                             [home dismissViewControllerAnimated:NO completion:nil];
                                             home = nil;
                                             [told addObject:NSStringFromClass([refused class])];
                                           }
                                                 colorTheme:makeTheme()
                                                privacyLink:@""
                                         termsOfServiceLink:@""];
    standin::finishTransitions();
    screen = refusal();
    EXPECT_TRUE(standin::tapLink([screen contact], 38));
  }
  EXPECT_OBJECT(told, @[ @"QV_AgeGateRefusedViewController" ]);
  EXPECT_OBJECT(screen, nil);
}

class BadInputOfTheSupport : public SupportTest {
 protected:
  NSString* bodyWith(NSString* openingMessage, NSString* additionalMetadata) {
    [helper contactSupportWithViewController:home
                                       email:@""
                                     subject:@""
                                   purchases:@[]
                              openingMessage:openingMessage
                          additionalMetadata:additionalMetadata
                                    delegate:nil];
    NSString* body = standin::mailOf(composer()).body;
    finish(composer());
    return body;
  }
};

TEST_F(BadInputOfTheSupport, NilMessagesAreNotEmptyOnes) {
  EXPECT_TRUE([bodyWith(nil, nil) hasPrefix:@"Reason for contacting support:\n\n\n"]);
  EXPECT_TRUE([bodyWith(@"", @"") hasPrefix:@"\n\n\n\n\n\n\n\n\nApp ID: "]);
  EXPECT_TRUE([bodyWith(nil, nil) hasSuffix:@"\nIAP: No \n"]);
  EXPECT_TRUE([bodyWith(@"", @"") hasSuffix:@"\nIAP: No \n"]);
}

TEST_F(BadInputOfTheSupport, TextsComeThroughAsTheyAre) {
  NSString* body = bodyWith(@"a\0b 👩‍🚀", fromUnits({'x', 0xDE80}));
  EXPECT_TRUE([body hasPrefix:@"a\0b 👩‍🚀\n\n\n"]);
  EXPECT_TRUE([body hasSuffix:@"\nx\uFFFD"]);
}

TEST_F(BadInputOfTheSupport, NilTextsAndListsAreEmptyOnes) {
  [helper contactSupportWithViewController:home
                                     email:none<NSString>()
                                   subject:none<NSString>()
                                 purchases:none<NSArray>()
                            openingMessage:nil
                        additionalMetadata:nil
                                  delegate:nil];
  EXPECT_OBJECT(standin::mailOf(composer()).toRecipients, @[ @"" ]);
  EXPECT_OBJECT(standin::mailOf(composer()).subject, @"");
  EXPECT_TRUE([standin::mailOf(composer()).body hasSuffix:@"\nIAP: No \n"]);
}

TEST_F(BadInputOfTheSupport, NoDelegateIsSkipped) {
  delegate = nil;
  contact();
  finish(composer());
  EXPECT_OBJECT(home.presentedViewController, nil);
}

TEST_F(BadInputOfTheSupport, NoHostsScreenIsAFatalError) {
  home = nil;
  EXPECT_DEATH(contact(), "QV_Commons fatal error: QV_SupportHelper: .*view controller");
}

TEST_F(BadInputOfTheSupport, AnErrorWithoutAnyTextIsTaken) {
  contact();
  standin::finishMail(composer(), MFMailComposeResultFailed,
                      [NSError errorWithDomain:@"" code:0 userInfo:none<NSDictionary>()]);
  standin::finishTransitions();
  EXPECT_EQ(delegate.completions, 1);
}

class BadInputOfTheHelpers : public UIKitTest {};

TEST_F(BadInputOfTheHelpers, NilIsAnEmptyText) {
  [QV_RateHelper openWriteReviewOnAppStoreWithAppId:none<NSString>()];
  EXPECT_THAT(lines(), ElementsAre("UIApplication "
                                   "openURL:itms-apps://apps.apple.com/app/"
                                   "?mt=8&action=write-review options:0 completionHandler:nil"));
  EXPECT_OBJECT([QV_BundleFileHelper loadJsonFromBundleWithFilename:none<NSString>()], nil);
}

TEST_F(BadInputOfTheHelpers, NoFileHasSuchAName) {
  for (NSString* name in @[ @"", @"words\0", @"👍", fromUnits({0xDE80}), @"no/such" ]) {
    EXPECT_OBJECT([QV_BundleFileHelper loadJsonFromBundleWithFilename:name], nil);
  }
}

}  // namespace
