#pragma once

#import "UIView.h"

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, UIControlEvents) {
  UIControlEventTouchUpInside = 1 << 6,
  UIControlEventValueChanged = 1 << 12,
};

typedef NS_OPTIONS(NSUInteger, UIControlState) {
  UIControlStateNormal = 0,
  UIControlStateDisabled = 1 << 1,
};

@interface UIControl : UIView
@property(nonatomic, getter=isEnabled) BOOL enabled;
- (void)addTarget:(nullable id)target
              action:(SEL)action
    forControlEvents:(UIControlEvents)controlEvents;
- (void)sendActionsForControlEvents:(UIControlEvents)controlEvents;
@end

@interface UIButton : UIControl
- (void)setTitle:(nullable NSString*)title forState:(UIControlState)state;
- (nullable NSString*)titleForState:(UIControlState)state;
- (void)setTitleColor:(nullable UIColor*)color forState:(UIControlState)state;
- (nullable UIColor*)titleColorForState:(UIControlState)state;
@end

typedef NS_ENUM(NSInteger, UIDatePickerStyle) {
  UIDatePickerStyleAutomatic,
  UIDatePickerStyleWheels,
  UIDatePickerStyleCompact,
} API_AVAILABLE(ios(13.4));

@interface UIDatePicker : UIControl
@property(nonatomic) UIDatePickerStyle preferredDatePickerStyle API_AVAILABLE(ios(13.4));
@property(nonatomic, strong) NSDate* date;
@property(nonatomic, strong, nullable) NSDate* minimumDate;
@property(nonatomic, strong, nullable) NSDate* maximumDate;
@end

@interface UITextField : UIControl
@property(nonatomic, copy, nullable) NSString* text;
@end

@interface UISearchBar : UIView
@property(nonatomic, readonly) UITextField* searchTextField API_AVAILABLE(ios(13.0));
@end

NS_ASSUME_NONNULL_END
