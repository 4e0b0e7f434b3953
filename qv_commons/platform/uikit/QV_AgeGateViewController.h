// The UIKit side of the date-of-birth screen. Not for hosts.
#pragma once

#import "qv_commons/platform/uikit/layout_view_controller.h"

NS_ASSUME_NONNULL_BEGIN

@interface QV_AgeGateViewController : QV_LayoutViewController

@property(nonatomic, weak, nullable) IBOutlet UIView* bg;
@property(nonatomic, weak, nullable) IBOutlet UIButton* confirmBtn;
@property(nonatomic, weak, nullable) IBOutlet UIDatePicker* datePicker;
@property(nonatomic, weak, nullable) IBOutlet UITextView* tos;
@property(nonatomic, weak, nullable) IBOutlet UILabel* header;
@property(nonatomic, weak, nullable) IBOutlet UILabel* subtitle;

- (IBAction)onDateChanged:(nullable id)sender;
- (IBAction)onConfirmPressed:(nullable id)sender;

@end

NS_ASSUME_NONNULL_END
