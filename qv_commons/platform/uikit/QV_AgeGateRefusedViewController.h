// The UIKit side of the refusal. Not for hosts.
#pragma once

#import "qv_commons/platform/uikit/layout_view_controller.h"

NS_ASSUME_NONNULL_BEGIN

@interface QV_AgeGateRefusedViewController : QV_LayoutViewController <UITextViewDelegate>

@property(nonatomic, weak, nullable) IBOutlet UIView* bg;
@property(nonatomic, weak, nullable) IBOutlet UITextView* contact;
@property(nonatomic, weak, nullable) IBOutlet UITextView* tos;
@property(nonatomic, weak, nullable) IBOutlet UILabel* header;

@end

NS_ASSUME_NONNULL_END
