#pragma once

#import "UIColor.h"

NS_ASSUME_NONNULL_BEGIN

@protocol UIResponderStandardEditActions <NSObject>
@optional
- (void)copy:(nullable id)sender;
@end

@interface UIResponder : NSObject <UIResponderStandardEditActions>
@end

@interface CALayer : NSObject
@property(nonatomic) CGFloat cornerRadius;
@end

@interface UIView : UIResponder
@property(nonatomic, readonly, copy) NSArray<UIView*>* subviews;
@property(nonatomic, readonly, nullable, weak) UIView* superview;
@property(nonatomic, readonly, strong) CALayer* layer;
@property(nonatomic, copy, nullable) UIColor* backgroundColor;
@property(nonatomic) BOOL clipsToBounds;
@property(nonatomic, copy, nullable) NSString* accessibilityIdentifier;
@property(nonatomic, copy, nullable) NSString* accessibilityLabel;
- (void)addSubview:(UIView*)view;
- (void)removeFromSuperview;
@end

@interface UIScrollView : UIView
@end

@interface UIStackView : UIView
@property(nonatomic, readonly, copy) NSArray<UIView*>* arrangedSubviews;
- (void)addArrangedSubview:(UIView*)view;
@end

@interface UIImageView : UIView
@end

@interface UILabel : UIView
@property(nonatomic, copy, nullable) NSString* text;
@property(nonatomic, strong, null_resettable) UIColor* textColor;
@end

NS_ASSUME_NONNULL_END
