#import "qv_commons/platform/uikit/QV_AgeGateViewController.h"

#include "qv_commons/age_gate/age_gate_view_controller.h"
#include "qv_commons/platform/platform.h"

@implementation QV_AgeGateViewController

+ (qv_commons::LayoutScreenFactory)screenFactory {
  return [](std::unique_ptr<qv_commons::ViewController> native) {
    return std::make_shared<qv_commons::QV_AgeGateViewController>(std::move(native),
                                                                  qv_commons::currentPlatform());
  };
}

- (UIView*)bg {
  return [self viewForOutlet:"bg"];
}
- (void)setBg:(UIView*)bg {
  [self setView:bg forOutlet:"bg"];
}

- (UIButton*)confirmBtn {
  return static_cast<UIButton*>([self viewForOutlet:"confirmBtn"]);
}
- (void)setConfirmBtn:(UIButton*)confirmBtn {
  [self setView:confirmBtn forOutlet:"confirmBtn"];
}

- (UIDatePicker*)datePicker {
  return static_cast<UIDatePicker*>([self viewForOutlet:"datePicker"]);
}
- (void)setDatePicker:(UIDatePicker*)datePicker {
  [self setView:datePicker forOutlet:"datePicker"];
}

- (UITextView*)tos {
  return static_cast<UITextView*>([self viewForOutlet:"tos"]);
}
- (void)setTos:(UITextView*)tos {
  [self setView:tos forOutlet:"tos"];
}

- (UILabel*)header {
  return static_cast<UILabel*>([self viewForOutlet:"header"]);
}
- (void)setHeader:(UILabel*)header {
  [self setView:header forOutlet:"header"];
}

- (UILabel*)subtitle {
  return static_cast<UILabel*>([self viewForOutlet:"subtitle"]);
}
- (void)setSubtitle:(UILabel*)subtitle {
  [self setView:subtitle forOutlet:"subtitle"];
}

- (void)onDateChanged:(id)sender {
  [self runAction:_cmd];
}
- (void)onConfirmPressed:(id)sender {
  [self runAction:_cmd];
}

@end
