// The programming errors of a layout, each a fatal error that names what is wrong.
#import "tests/uikit/age_gate_fixture.h"

namespace {

UITextView* textView(NSString* text) {
  UITextView* made = [UITextView new];
  made.text = text;
  return made;
}

UILabel* label(NSString* text) {
  UILabel* made = [UILabel new];
  made.text = text;
  return made;
}

NSString* textOfLength(NSUInteger length) {
  return [@"" stringByPaddingToLength:length withString:@"x" startingAtIndex:0];
}

// Screens without a layout, whose outlets are set by hand; the fixture owns the views.
class UIKitScreenDeaths : public AgeGateTest {
 protected:
  UIKitScreenDeaths() {
    const standin::RecordPause pause;
    views = @{
      @"bg" : [UIView new],
      @"confirmBtn" : [UIButton new],
      @"datePicker" : [UIDatePicker new],
      @"tos" : textView(textOfLength(33)),
      @"header" : label(@"[APPNAME]"),
      @"subtitle" : [UILabel new],
      @"contact" : textView(textOfLength(60)),
    };
  }

  UIViewController* screenWith(Class type, NSArray<NSString*>* outlets) {
    UIViewController* screen = [[type alloc] initWithNibName:nil bundle:nil];
    for (NSString* outlet in outlets) [screen setValue:views[outlet] forKey:outlet];
    return screen;
  }

  // Loads the screen with one view replaced, or missing for nil.
  void loadGate(NSString* outlet, UIView* view) { load(gateClass, gateOutlets, outlet, view); }
  void loadRefusal(NSString* outlet, UIView* view) {
    load(refusalClass, refusalOutlets, outlet, view);
  }
  void load(Class type, NSArray<NSString*>* outlets, NSString* outlet, UIView* view) {
    UIViewController* screen = screenWith(type, outlets);
    [screen setValue:view forKey:outlet];
    [screen loadViewIfNeeded];
  }

  const Class gateClass = [QV_AgeGateViewController class];
  const Class refusalClass = [QV_AgeGateRefusedViewController class];
  NSArray<NSString*>* gateOutlets =
      @[ @"bg", @"confirmBtn", @"datePicker", @"tos", @"header", @"subtitle" ];
  NSArray<NSString*>* refusalOutlets = @[ @"bg", @"contact", @"tos", @"header" ];
  NSDictionary<NSString*, UIView*>* views;
};

TEST_F(UIKitScreenDeaths, DoNotComeFromScreensThatAreWhole) {
  [screenWith(gateClass, gateOutlets) loadViewIfNeeded];
  [screenWith(refusalClass, refusalOutlets) loadViewIfNeeded];
  EXPECT_OBJECT(static_cast<UILabel*>(views[@"header"]).text, @"Notes");
}

TEST_F(UIKitScreenDeaths, NameAnOutletOfTheAgeGateThatIsNotConnected) {
  EXPECT_DEATH(loadGate(@"bg", nil), "fatal error: QV_AgeGateViewController: .*\"bg\"");
  EXPECT_DEATH(loadGate(@"confirmBtn", nil), "QV_AgeGateViewController: .*\"confirmBtn\"");
  EXPECT_DEATH(loadGate(@"datePicker", nil), "QV_AgeGateViewController: .*\"datePicker\"");
  EXPECT_DEATH(loadGate(@"tos", nil), "QV_AgeGateViewController: .*\"tos\"");
  EXPECT_DEATH(loadGate(@"header", nil), "QV_AgeGateViewController: .*\"header\"");
  EXPECT_DEATH(loadGate(@"subtitle", nil), "QV_AgeGateViewController: .*\"subtitle\"");
}

TEST_F(UIKitScreenDeaths, NameAnOutletOfTheRefusalThatIsNotConnected) {
  EXPECT_DEATH(loadRefusal(@"bg", nil), "QV_AgeGateRefusedViewController: .*\"bg\"");
  EXPECT_DEATH(loadRefusal(@"contact", nil), "QV_AgeGateRefusedViewController: .*\"contact\"");
  EXPECT_DEATH(loadRefusal(@"tos", nil), "QV_AgeGateRefusedViewController: .*\"tos\"");
  EXPECT_DEATH(loadRefusal(@"header", nil), "QV_AgeGateRefusedViewController: .*\"header\"");
}

TEST_F(UIKitScreenDeaths, NameAnOutletConnectedToAViewOfAnotherClass) {
  UIView* plain = [UIView new];
  EXPECT_DEATH(loadGate(@"datePicker", plain), "QV_AgeGateViewController: .*\"datePicker\"");
}

TEST_F(UIKitScreenDeaths, SayThatTheHeaderHasNoText) {
  UILabel* silent = [UILabel new];
  EXPECT_DEATH(loadRefusal(@"header", silent),
               "QV_AgeGateRefusedViewController: the header has no text");
}

TEST_F(UIKitScreenDeaths, SayThatATextIsTooShortForItsLinks) {
  UITextView* shortPolicies = textView(textOfLength(32));
  EXPECT_DEATH(loadGate(@"tos", shortPolicies), "applyPolicyLinks: .*32 .*33");
  EXPECT_DEATH(loadRefusal(@"tos", shortPolicies), "applyPolicyLinks: .*32 .*33");
  UITextView* shortContact = textView(textOfLength(59));
  EXPECT_DEATH(loadRefusal(@"contact", shortContact), "applyContactLink: .*59 .*60");
  UITextView* empty = textView(@"");
  EXPECT_DEATH(loadGate(@"tos", empty), "applyPolicyLinks: .*0 .*33");
}

TEST_F(UIKitScreenDeaths, ComeWhenAnActionNeedsAnOutletThatIsGone) {
  UIViewController* screen = screenWith(gateClass, @[]);
  EXPECT_DEATH([static_cast<QV_AgeGateViewController*>(screen) onDateChanged:nil],
               "QV_AgeGateViewController: .*\"confirmBtn\"");
  EXPECT_DEATH([static_cast<QV_AgeGateViewController*>(screen) onConfirmPressed:nil],
               "QV_AgeGateViewController: .*\"datePicker\"");
}

TEST_F(UIKitScreenDeaths, CountTextInUtf16Units) {
  UITextView* rockets = textView([@"" stringByPaddingToLength:34
                                                   withString:@"🚀"
                                              startingAtIndex:0]);
  EXPECT_EQ(rockets.attributedText.length, 34U);
  loadGate(@"tos", rockets);
  EXPECT_OBJECT([rockets.attributedText attribute:NSLinkAttributeName
                                          atIndex:32
                                   effectiveRange:nullptr],
                @"");
}

}  // namespace
