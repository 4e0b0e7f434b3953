// A host of the age gate, and its user.
#pragma once

#import "qv_commons/platform/uikit/QV_AgeGateRefusedViewController.h"
#import "qv_commons/platform/uikit/QV_AgeGateViewController.h"

#import "tests/uikit/uikit_test.h"

namespace {

constexpr double kEighteenYearsAgo = 1132006400;  // 2005-11-14 22:13:20 UTC
constexpr double kDay = 86400;

}  // namespace

class AgeGateTest : public UIKitTest {
 protected:
  AgeGateTest() {
    standin::setName(theme.background, @"host background");
    standin::setName(theme.buttonBackground, @"host button background");
    standin::setName(theme.buttonText, @"host button text");
    standin::setName(theme.text, @"host text");
    standin::setName(theme.policiesText, @"host policies text");
  }

  struct Theme {
    UIColor* background = [UIColor colorWithRed:0.9 green:0.9 blue:1 alpha:1];
    UIColor* buttonBackground = [UIColor colorWithRed:0.1 green:0.2 blue:0.3 alpha:1];
    UIColor* buttonText = [UIColor colorWithRed:1 green:0.9 blue:0.9 alpha:1];
    UIColor* text = [UIColor colorWithRed:0.2 green:0.2 blue:0.2 alpha:1];
    UIColor* policiesText = [UIColor colorWithRed:0 green:0.3 blue:0.8 alpha:0.5];
  };

  QV_AgeGateColorTheme* makeTheme() const {
    return [[QV_AgeGateColorTheme alloc] initWithBackgroundColor:theme.background
                                           buttonBackgroundColor:theme.buttonBackground
                                                 buttonTextColor:theme.buttonText
                                                       textColor:theme.text
                                               policiesTextColor:theme.policiesText];
  }

  void start(int64_t minimumAge = 18) {
    [QV_AgeGateHelper startAgeGateProcessWithViewController:home
        minimumAgeRequired:minimumAge
        completion:^{
          ++completions;
        }
        contactUsHandler:^(UIViewController* screen) {
          [contacted addObject:screen];
        }
        colorTheme:makeTheme()
        privacyLink:@"https://example.com/privacy"
        termsOfServiceLink:@"https://example.com/terms"];
    standin::finishTransitions();
  }

  QV_AgeGateViewController* gate() const {
    return static_cast<QV_AgeGateViewController*>(home.presentedViewController);
  }
  QV_AgeGateRefusedViewController* refusal() const {
    return static_cast<QV_AgeGateRefusedViewController*>(home.presentedViewController);
  }

  // The user turns the picker's wheels, and taps the button.
  static void pick(QV_AgeGateViewController* gate, double birth) {
    {
      const standin::RecordPause pause;
      gate.datePicker.date = [NSDate dateWithTimeIntervalSince1970:birth];
    }
    [gate.datePicker sendActionsForControlEvents:UIControlEventValueChanged];
  }
  static void confirm(QV_AgeGateViewController* gate) {
    [gate.confirmBtn sendActionsForControlEvents:UIControlEventTouchUpInside];
  }
  static void confirmAndWait(QV_AgeGateViewController* gate) {
    confirm(gate);
    standin::finishTransitions();
  }

  static bool flag(NSString* key) { return [NSUserDefaults.standardUserDefaults boolForKey:key]; }
  static void setFlag(NSString* key) {
    const standin::RecordPause pause;
    [NSUserDefaults.standardUserDefaults setBool:YES forKey:key];
  }

  const Theme theme;
  int completions = 0;
  NSMutableArray<UIViewController*>* contacted = [NSMutableArray array];
};
