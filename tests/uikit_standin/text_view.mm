#import "tests/uikit_standin/standin.h"

using standin::nameOf;
using standin::note;

NSAttributedStringKey const NSForegroundColorAttributeName = @"NSColor";
NSAttributedStringKey const NSLinkAttributeName = @"NSLink";

@implementation UIPasteboard
@synthesize string = _string;
+ (UIPasteboard*)generalPasteboard {
  static UIPasteboard* const general = [UIPasteboard new];
  return general;
}
@end

@implementation UITextView
@synthesize delegate = _delegate;
@synthesize attributedText = _attributedText;
@synthesize linkTextAttributes = _linkTextAttributes;
@synthesize textColor = _textColor;
@synthesize editable = _editable;
@synthesize selectable = _selectable;
@synthesize selectedRange = _selectedRange;
- (instancetype)init {
  if ((self = [super init])) {
    _attributedText = [NSAttributedString new];
    _editable = YES;
    _selectable = YES;
  }
  return self;
}
- (NSString*)text {
  return _attributedText.string;
}
- (void)setText:(NSString*)text {
  _attributedText = [[NSAttributedString alloc] initWithString:text ?: @""];
}
- (void)setAttributedText:(NSAttributedString*)text {
  note(@"%@ setAttributedText:\"%@\"", nameOf(self), text.string);
  _attributedText = [text copy];
}
- (void)setLinkTextAttributes:(NSDictionary*)attributes {
  NSMutableArray* entries = [NSMutableArray array];
  for (NSString* key in attributes) {
    [entries addObject:[NSString stringWithFormat:@"%@=%@", key, nameOf(attributes[key])]];
  }
  note(@"%@ setLinkTextAttributes:{%@}", nameOf(self), [entries componentsJoinedByString:@", "]);
  _linkTextAttributes = [attributes copy];
}
// Colours all of the text, as the platform does.
- (void)setTextColor:(UIColor*)color {
  note(@"%@ setTextColor:%@", nameOf(self), nameOf(color));
  _textColor = color;
  NSMutableAttributedString* text = [_attributedText mutableCopy];
  const NSRange all = NSMakeRange(0, text.length);
  [text removeAttribute:NSForegroundColorAttributeName range:all];
  if (color != nil) [text addAttribute:NSForegroundColorAttributeName value:color range:all];
  _attributedText = [text copy];
}
- (void)copy:(id)sender {
  UIPasteboard.generalPasteboard.string = [self.text substringWithRange:_selectedRange];
}
- (void)setDelegate:(id<UITextViewDelegate>)delegate {
  note(@"%@ setDelegate:%@", nameOf(self), nameOf(delegate));
  _delegate = delegate;
}
@end

bool standin::tapLink(UITextView* textView, NSUInteger index) {
  if (textView.editable || !textView.selectable || index >= textView.attributedText.length) {
    return false;
  }
  NSRange range;
  id link = [textView.attributedText attribute:NSLinkAttributeName
                                       atIndex:index
                         longestEffectiveRange:&range
                                       inRange:NSMakeRange(0, textView.attributedText.length)];
  if (link == nil) return false;
  NSURL* url = [link isKindOfClass:[NSURL class]] ? link : [NSURL URLWithString:link];
  if (url == nil) return false;
  id<UITextViewDelegate> delegate = textView.delegate;
  if ([delegate respondsToSelector:@selector(textView:
                                       shouldInteractWithURL:inRange:interaction:)] &&
      ![delegate textView:textView
          shouldInteractWithURL:url
                        inRange:range
                    interaction:UITextItemInteractionInvokeDefaultAction]) {
    return true;
  }
  [UIApplication.sharedApplication openURL:url options:@{} completionHandler:nil];
  return true;
}
