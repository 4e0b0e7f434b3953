// The age gate by its selectors, from the host's call to the user's way through it.
#import "tests/uikit/age_gate_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class UIKitAgeGate : public AgeGateTest {};

TEST_F(UIKitAgeGate, PresentsTheScreenAndDressesIt) {
  start();
  EXPECT_THAT(
      lines(),
      ElementsAre("QV_AgeGateViewController setModalInPresentation:1",
                  "home presentViewController:QV_AgeGateViewController animated:1 completion:nil",
                  "bg setBackgroundColor:host background", "bg.layer setCornerRadius:8",
                  "bg setClipsToBounds:1", "header setTextColor:host text",
                  "subtitle setTextColor:host text", "confirmBtn.layer setCornerRadius:8",
                  "confirmBtn setClipsToBounds:1", "confirmBtn setEnabled:0",
                  "confirmBtn setTitleColor:host policies text forState:2",
                  "confirmBtn setTitleColor:host button text forState:0",
                  "confirmBtn setBackgroundColor:host button background",
                  "tos setLinkTextAttributes:{NSColor=host policies text}",
                  "tos setAttributedText:\"Privacy Policy & Terms of Service\"",
                  "tos setTextColor:host text", "datePicker setMaximumDate:1731622400.000",
                  "datePicker setDate:1700000000.000"));
  EXPECT_EQ(completions, 0);
}

TEST_F(UIKitAgeGate, IsNotMadeModalBeforeSystem13) {
  standin::setSystemVersion(12, 4, 9);
  start();
  EXPECT_EQ(lines().front(),
            "home presentViewController:QV_AgeGateViewController animated:1 completion:nil");
}

TEST_F(UIKitAgeGate, CannotBeSwipedAway) {
  start();
  EXPECT_FALSE(standin::swipeAway(gate()));
}

TEST_F(UIKitAgeGate, CanBeConfirmedFromTheFirstPickOn) {
  start();
  confirm(gate());
  EXPECT_NE(gate(), nil);
  lines();
  pick(gate(), 1700000000);
  EXPECT_THAT(lines(), ElementsAre("confirmBtn setEnabled:1"));
  confirm(gate());
  EXPECT_TRUE(flag(@"QV_AgeGate_Shown"));
}

TEST_F(UIKitAgeGate, LetsAUserThroughOnTheBirthday) {
  start(18);
  pick(gate(), kEighteenYearsAgo);
  lines();
  confirm(gate());
  EXPECT_THAT(lines(), ElementsAre("QV_AgeGateViewController dismissViewControllerAnimated:1 "
                                   "completion:nil",
                                   "NSUserDefaults setBool:1 forKey:QV_AgeGate_Shown"));
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(standin::waitingTransitions(), 1U);  // the dismissal still runs
  EXPECT_FALSE(flag(@"QV_AgeGate_Blocked"));
  EXPECT_OBJECT(home.presentedViewController, nil);
}

TEST_F(UIKitAgeGate, RefusesAUserADayTooYoung) {
  start(18);
  pick(gate(), kEighteenYearsAgo + kDay);
  lines();
  confirmAndWait(gate());
  EXPECT_THAT(
      lines(),
      ElementsAre(
          "QV_AgeGateViewController dismissViewControllerAnimated:1 completion:nil",
          "NSUserDefaults setBool:1 forKey:QV_AgeGate_Shown",
          "NSUserDefaults setBool:1 forKey:QV_AgeGate_Blocked",
          "QV_AgeGateRefusedViewController setModalInPresentation:1",
          "QV_AgeGateRefusedViewController setOverrideUserInterfaceStyle:1",
          "home presentViewController:QV_AgeGateRefusedViewController animated:1 completion:nil",
          "bg setBackgroundColor:host background", "bg.layer setCornerRadius:8",
          "bg setClipsToBounds:1", "tos setLinkTextAttributes:{NSColor=host policies text}",
          "tos setAttributedText:\"Privacy Policy & Terms of Service\"",
          "tos setTextColor:host text",
          "contact setLinkTextAttributes:{NSColor=host policies text}",
          "contact setAttributedText:\"If you think this is an error, please contact us for "
          "support.\"",
          "contact setTextColor:host text", "contact setDelegate:QV_AgeGateRefusedViewController",
          "header setTextColor:host text",
          "header setText:\"We’re sorry, Notes isn’t available to you\""));
  EXPECT_EQ(completions, 0);
  EXPECT_TRUE(flag(@"QV_AgeGate_Shown"));
  EXPECT_TRUE(flag(@"QV_AgeGate_Blocked"));
}

// A system that presents during a dismissal, and one that loses what comes then.
class UIKitRefusal : public AgeGateTest, public testing::WithParamInterface<bool> {
 protected:
  UIKitRefusal() { standin::setStrictPresentation(GetParam()); }
};

TEST_P(UIKitRefusal, IsPresentedWhenTheScreenBeforeItIsGone) {
  start(18);
  pick(gate(), 1700000000);
  confirm(gate());
  EXPECT_OBJECT(home.presentedViewController, nil);
  standin::finishTransition();
  EXPECT_TRUE([refusal() isKindOfClass:[QV_AgeGateRefusedViewController class]]);
  standin::finishTransitions();
  lines();
  EXPECT_EQ(refusal().presentingViewController, home);
  EXPECT_TRUE(standin::tapLink(refusal().contact, 38));
  EXPECT_OBJECT(contacted, @[ refusal() ]);
}

TEST_P(UIKitRefusal, IsPresentedAtOnceWhereNothingMoves) {
  setFlag(@"QV_AgeGate_Shown");
  setFlag(@"QV_AgeGate_Blocked");
  start();
  EXPECT_TRUE([refusal() isKindOfClass:[QV_AgeGateRefusedViewController class]]);
}

INSTANTIATE_TEST_SUITE_P(Presentation, UIKitRefusal, testing::Bool(),
                         [](const auto& info) { return info.param ? "Strict" : "Lenient"; });

TEST_F(UIKitAgeGate, PinsTheRefusalToTheLookOfTheMoment) {
  standin::setUserInterfaceStyle(UIUserInterfaceStyleDark);
  start();
  pick(gate(), 1700000000);
  confirmAndWait(gate());
  EXPECT_EQ(refusal().overrideUserInterfaceStyle, UIUserInterfaceStyleDark);
}

TEST_F(UIKitAgeGate, NeitherPinsNorLocksTheRefusalBeforeSystem13) {
  standin::setSystemVersion(12, 1);
  start();
  pick(gate(), 1700000000);
  lines();
  confirmAndWait(gate());
  EXPECT_EQ(lines()[3],
            "home presentViewController:QV_AgeGateRefusedViewController animated:1 completion:nil");
}

TEST_F(UIKitAgeGate, CallsTheCompletionAtOnceForAUserLetThroughBefore) {
  setFlag(@"QV_AgeGate_Shown");
  start();
  EXPECT_EQ(completions, 1);
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(UIKitAgeGate, ShowsTheRefusalAgainToAUserRefusedBefore) {
  setFlag(@"QV_AgeGate_Shown");
  setFlag(@"QV_AgeGate_Blocked");
  start();
  EXPECT_EQ(completions, 0);
  const auto shown = lines();
  EXPECT_EQ(shown[0], "QV_AgeGateRefusedViewController setModalInPresentation:1");
  EXPECT_EQ(shown[1],
            "home presentViewController:QV_AgeGateRefusedViewController animated:1 completion:nil");
  EXPECT_EQ(refusal().overrideUserInterfaceStyle, UIUserInterfaceStyleUnspecified);
  EXPECT_FALSE(standin::swipeAway(refusal()));
}

TEST_F(UIKitAgeGate, AsksAgainWhereOnlyTheRefusalIsRemembered) {
  setFlag(@"QV_AgeGate_Blocked");
  start();
  EXPECT_TRUE([gate() isKindOfClass:[QV_AgeGateViewController class]]);
}

TEST_F(UIKitAgeGate, OpensItsPolicyLinksWithTheSystem) {
  start();
  EXPECT_OBJECT(gate().tos.delegate, nil);
  EXPECT_TRUE(standin::tapLink(gate().tos, 0));
  EXPECT_TRUE(standin::tapLink(gate().tos, 13));
  EXPECT_FALSE(standin::tapLink(gate().tos, 14));
  EXPECT_FALSE(standin::tapLink(gate().tos, 16));
  EXPECT_TRUE(standin::tapLink(gate().tos, 17));
  EXPECT_TRUE(standin::tapLink(gate().tos, 32));
  EXPECT_OBJECT([standin::openedURLs() valueForKey:@"absoluteString"], (@[
                  @"https://example.com/privacy", @"https://example.com/privacy",
                  @"https://example.com/terms", @"https://example.com/terms"
                ]));
}

TEST_F(UIKitAgeGate, GivesATapOnTheContactLinkToTheHost) {
  setFlag(@"QV_AgeGate_Shown");
  setFlag(@"QV_AgeGate_Blocked");
  start();
  EXPECT_FALSE(standin::tapLink(refusal().contact, 37));
  EXPECT_TRUE(standin::tapLink(refusal().contact, 38));
  EXPECT_TRUE(standin::tapLink(refusal().contact, 59));
  EXPECT_FALSE(standin::tapLink(refusal().contact, 60));
  EXPECT_OBJECT(contacted, (@[ refusal(), refusal() ]));
  EXPECT_THAT(standin::openedURLs().count, 0U);
}

TEST_F(UIKitAgeGate, AnswersNoToEveryLinkOfTheRefusal) {
  setFlag(@"QV_AgeGate_Shown");
  setFlag(@"QV_AgeGate_Blocked");
  start();
  for (NSString* link in @[ @"https://example.com", @"mailto", @"mailto:a@example.com" ]) {
    EXPECT_FALSE([refusal() textView:refusal().contact
               shouldInteractWithURL:[NSURL URLWithString:link]
                             inRange:NSMakeRange(0, 1)
                         interaction:UITextItemInteractionPreview]);
  }
  EXPECT_EQ(contacted.count, 2U);
}

TEST_F(UIKitAgeGate, KeepsTheHostsScreenAndItsBlocksAsLongAsItLives) {
  __weak UIViewController* weakHome;
  __weak id weakOwner;
  __attribute__((objc_precise_lifetime)) QV_AgeGateViewController* screen;
  @autoreleasepool {
    home = standin::makeViewController(@"home");
    NSObject* owner = [NSObject new];
    [QV_AgeGateHelper startAgeGateProcessWithViewController:home
                                         minimumAgeRequired:18
                                                 completion:^{
                                                   (void)owner.hash;
                                                 }
                                           contactUsHandler:nil
                                                 colorTheme:makeTheme()
                                                privacyLink:@""
                                         termsOfServiceLink:@""];
    standin::finishTransitions();
    screen = gate();
    weakHome = home;
    weakOwner = owner;
    home = nil;
    owner = nil;
  }
  @autoreleasepool {
    EXPECT_EQ(screen.presentingViewController, weakHome);
    EXPECT_NE(weakHome, nil);
    EXPECT_NE(weakOwner, nil);
    [weakHome dismissViewControllerAnimated:NO completion:nil];
    screen = nil;
  }
  EXPECT_OBJECT(weakHome, nil);
  EXPECT_OBJECT(weakOwner, nil);
}

}  // namespace
