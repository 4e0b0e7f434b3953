#pragma once

#import "UIKitDefines.h"

NS_ASSUME_NONNULL_BEGIN

@interface UIColor : NSObject
@property(class, nonatomic, readonly) UIColor* whiteColor;
@property(class, nonatomic, readonly) UIColor* blackColor;
+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
- (BOOL)getRed:(nullable CGFloat*)red
         green:(nullable CGFloat*)green
          blue:(nullable CGFloat*)blue
         alpha:(nullable CGFloat*)alpha;
@end

NS_ASSUME_NONNULL_END
