// The two screens by themselves: their construction, outlets and actions.
#import "tests/uikit/age_gate_fixture.h"

using testing::ElementsAre;

namespace {

class UIKitScreens : public AgeGateTest {
 protected:
  static QV_AgeGateViewController* makeGate() {
    return [[QV_AgeGateViewController alloc]
        initWithNibName:@"QV_AgeGateViewController"
                 bundle:[QV_BundleFileHelper getQVCommonsResourceBundle]];
  }
};

TEST_F(UIKitScreens, HaveTheirDefaultsWhereTheLayoutAloneMadeThem) {
  standin::setUserInterfaceStyle(UIUserInterfaceStyleDark);
  QV_AgeGateViewController* screen = makeGate();
  EXPECT_OBJECT(screen.bg, nil);
  [home presentViewController:screen animated:YES completion:nil];
  EXPECT_OBJECT(standin::nameOf(screen.bg.backgroundColor), @"(0.118, 0.118, 0.118, 1)");
  EXPECT_OBJECT([screen.tos.attributedText attribute:NSLinkAttributeName
                                             atIndex:0
                                      effectiveRange:nullptr],
                @"");
  pick(screen, 1195078400);  // 2007-11-14 22:13:20, sixteen years ago: the default minimum
  confirm(screen);
  EXPECT_FALSE(flag(@"QV_AgeGate_Blocked"));
}

TEST_F(UIKitScreens, PresentNothingAfterARefusalWithoutAHost) {
  QV_AgeGateViewController* screen = makeGate();
  [home presentViewController:screen animated:YES completion:nil];
  pick(screen, 1700000000);
  confirm(screen);
  EXPECT_TRUE(flag(@"QV_AgeGate_Shown"));
  EXPECT_TRUE(flag(@"QV_AgeGate_Blocked"));
  EXPECT_OBJECT(home.presentedViewController, nil);
}

TEST_F(UIKitScreens, CanBeMadeFromAnArchive) {
  NSCoder* coder = [[NSKeyedUnarchiver alloc]
      initForReadingWithData:[NSKeyedArchiver archivedDataWithRootObject:@"nothing"]];
  QV_AgeGateViewController* screen = [[QV_AgeGateViewController alloc] initWithCoder:coder];
  UIView* panel = [UIView new];
  screen.bg = panel;
  EXPECT_EQ(screen.bg, panel);
  QV_AgeGateRefusedViewController* refused =
      [[QV_AgeGateRefusedViewController alloc] initWithCoder:coder];
  refused.bg = panel;
  EXPECT_EQ(refused.bg, panel);
}

TEST_F(UIKitScreens, ReferToTheirViewsWithoutOwningThem) {
  QV_AgeGateViewController* screen = makeGate();
  @autoreleasepool {
    UIView* panel = [UIView new];
    UIButton* button = [UIButton new];
    UIDatePicker* picker = [UIDatePicker new];
    UITextView* text = [UITextView new];
    UILabel* label = [UILabel new];
    screen.bg = panel;
    screen.confirmBtn = button;
    screen.datePicker = picker;
    screen.tos = text;
    screen.header = label;
    screen.subtitle = label;
    EXPECT_EQ(screen.bg, panel);
    EXPECT_EQ(screen.confirmBtn, button);
    EXPECT_EQ(screen.datePicker, picker);
    EXPECT_EQ(screen.tos, text);
    EXPECT_EQ(screen.header, label);
    EXPECT_EQ(screen.subtitle, label);
  }
  EXPECT_OBJECT(screen.bg, nil);
  EXPECT_OBJECT(screen.confirmBtn, nil);
  EXPECT_OBJECT(screen.datePicker, nil);
  EXPECT_OBJECT(screen.tos, nil);
  EXPECT_OBJECT(screen.header, nil);
  EXPECT_OBJECT(screen.subtitle, nil);
}

TEST_F(UIKitScreens, LetGoOfAnOutletSetToNil) {
  QV_AgeGateViewController* screen = makeGate();
  UILabel* label = [UILabel new];
  screen.header = label;
  screen.header = nil;
  EXPECT_OBJECT(screen.header, nil);
}

TEST_F(UIKitScreens, RunTheirActionsForAnySender) {
  QV_AgeGateViewController* screen = makeGate();
  [home presentViewController:screen animated:YES completion:nil];
  lines();
  [screen onDateChanged:nil];
  EXPECT_THAT(lines(), ElementsAre("confirmBtn setEnabled:1"));
  [screen onConfirmPressed:home];
  EXPECT_TRUE(flag(@"QV_AgeGate_Shown"));
}

TEST_F(UIKitScreens, LoadOnceThoughTheyArePresentedTwice) {
  QV_AgeGateViewController* screen = makeGate();
  [home presentViewController:screen animated:NO completion:nil];
  [screen dismissViewControllerAnimated:NO completion:nil];
  lines();
  [home presentViewController:screen animated:NO completion:nil];
  EXPECT_THAT(lines(), ElementsAre("home presentViewController:QV_AgeGateViewController "
                                   "animated:0 completion:nil"));
}

TEST_F(UIKitScreens, LeaveNothingBehind) {
  __weak id gone[3];
  @autoreleasepool {
    home = standin::makeViewController(@"home");
    start();
    gone[0] = gate();
    gone[1] = gate().tos;
    pick(gate(), 1700000000);
    confirm(gate());
    gone[2] = refusal();
    [home dismissViewControllerAnimated:YES completion:nil];
    standin::finishTransitions();
    [contacted removeAllObjects];
  }
  for (const auto& each : gone) EXPECT_OBJECT(each, nil);
}

}  // namespace
