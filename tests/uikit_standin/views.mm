#include <algorithm>
#include <functional>

#import "tests/uikit_standin/standin.h"

using standin::nameOf;
using standin::note;

@interface CALayer ()
@property(nonatomic, weak) UIView* owner;
@end

@implementation CALayer
@synthesize cornerRadius = _cornerRadius;
- (void)setCornerRadius:(CGFloat)cornerRadius {
  note(@"%@.layer setCornerRadius:%g", nameOf(self.owner), cornerRadius);
  _cornerRadius = cornerRadius;
}
@end

@implementation UIResponder
@end

@implementation UIColor {
  CGFloat _components[4];
  BOOL _gray;
}
+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
  UIColor* color = [UIColor new];
  color->_components[0] = red;
  color->_components[1] = green;
  color->_components[2] = blue;
  color->_components[3] = alpha;
  return color;
}
+ (UIColor*)standinGray:(CGFloat)white {
  UIColor* color = [UIColor colorWithRed:white green:white blue:white alpha:1];
  color->_gray = YES;
  return color;
}
+ (UIColor*)whiteColor {
  static UIColor* white = [UIColor standinGray:1];
  return white;
}
+ (UIColor*)blackColor {
  static UIColor* black = [UIColor standinGray:0];
  return black;
}
// As on the platform, a grey is never equal to a colour of red, green and blue.
- (BOOL)isEqual:(id)other {
  if (![other isKindOfClass:[UIColor class]]) return NO;
  const UIColor* color = other;
  return _gray == color->_gray && std::equal(_components, _components + 4, color->_components);
}
- (NSUInteger)hash {
  NSUInteger hash = _gray;
  for (CGFloat component : _components) hash = hash * 31 + std::hash<CGFloat>()(component);
  return hash;
}
- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha {
  if (red) *red = _components[0];
  if (green) *green = _components[1];
  if (blue) *blue = _components[2];
  if (alpha) *alpha = _components[3];
  return YES;
}
@end

@implementation UIView {
  NSMutableArray<UIView*>* _subviews;
  CALayer* _layer;
}
@synthesize superview = _superview;
@synthesize backgroundColor = _backgroundColor;
@synthesize clipsToBounds = _clipsToBounds;
@synthesize accessibilityIdentifier = _accessibilityIdentifier;
@synthesize accessibilityLabel = _accessibilityLabel;
- (instancetype)init {
  if ((self = [super init])) {
    _subviews = [NSMutableArray array];
    _layer = [CALayer new];
    _layer.owner = self;
  }
  return self;
}
- (NSArray*)subviews {
  return [_subviews copy];
}
- (CALayer*)layer {
  return _layer;
}
- (void)addSubview:(UIView*)view {
  [view removeFromSuperview];
  [_subviews addObject:view];
  view->_superview = self;
}
- (void)removeFromSuperview {
  UIView* superview = _superview;
  if (superview == nil) return;
  _superview = nil;
  [superview->_subviews removeObjectIdenticalTo:self];
}
- (void)setBackgroundColor:(UIColor*)color {
  note(@"%@ setBackgroundColor:%@", nameOf(self), nameOf(color));
  _backgroundColor = color;
}
- (void)setClipsToBounds:(BOOL)clips {
  note(@"%@ setClipsToBounds:%d", nameOf(self), clips);
  _clipsToBounds = clips;
}
@end

@implementation UIScrollView
@end

@implementation UIStackView
- (NSArray*)arrangedSubviews {
  return self.subviews;
}
- (void)addArrangedSubview:(UIView*)view {
  [self addSubview:view];
}
@end

@implementation UIImageView
@end

@implementation UILabel
@synthesize text = _text;
@synthesize textColor = _textColor;
- (void)setText:(NSString*)text {
  note(@"%@ setText:\"%@\"", nameOf(self), text);
  _text = [text copy];
}
- (void)setTextColor:(UIColor*)color {
  note(@"%@ setTextColor:%@", nameOf(self), nameOf(color));
  _textColor = color;
}
@end
