#import "qv_commons/platform/uikit/uikit_text_view.h"

#include "qv_commons/age_gate/policy_links.h"
#include "qv_commons/platform/layout_screen.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/view_over.h"

// Whom a text view asks where the delegate is no screen.
@interface QV_TextViewForwarder : NSObject <UITextViewDelegate> {
 @public
  qv_commons::TextViewDelegate* delegate;
}
@end

@implementation QV_TextViewForwarder
- (BOOL)textView:(UITextView*)textView
    shouldInteractWithURL:(NSURL*)URL
                  inRange:(NSRange)range
              interaction:(UITextItemInteraction)interaction {
  return qv_commons::uikit::shouldInteract(*delegate, textView, URL, range);
}
@end

@implementation QV_LinkTextView
- (void)copy:(id)sender {
  const unichar filler = qv_commons::kLinkFiller;
  UIPasteboard.generalPasteboard.string = [[self.text substringWithRange:self.selectedRange]
      stringByReplacingOccurrencesOfString:[NSString stringWithCharacters:&filler length:1]
                                withString:@""];
}
@end

namespace qv_commons::uikit {
namespace {

// The screen of UIKit's where the delegate is one that answers for itself; otherwise nil.
id<UITextViewDelegate> screenOf(TextViewDelegate* delegate) {
  UIViewController* controller = toUIViewController(dynamic_cast<LayoutScreen*>(delegate));
  if (![controller conformsToProtocol:@protocol(UITextViewDelegate)]) return nil;
  return static_cast<id<UITextViewDelegate>>(controller);
}

class TextViewView final : public ViewOver<TextView, UITextView> {
 public:
  using ViewOver::ViewOver;

  std::optional<std::size_t> textLength() const override {
    NSAttributedString* text = view().attributedText;
    return text == nil ? std::nullopt : std::optional<std::size_t>(text.length);
  }
  void addLinks(const std::vector<TextLink>& links, const Color& foreground) override {
    NSMutableAttributedString* text =
        [[NSMutableAttributedString alloc] initWithAttributedString:view().attributedText];
    for (const TextLink& link : links) {
      [text addAttribute:NSLinkAttributeName
                   value:toNSString(link.value)
                   range:NSMakeRange(link.range.location, link.range.length)];
    }
    view().linkTextAttributes = @{NSForegroundColorAttributeName : toUIColor(foreground)};
    view().attributedText = text;
  }
  void setTextColor(const Color& color) override { view().textColor = toUIColor(color); }
  void setDelegate(TextViewDelegate* delegate) override {
    if (id<UITextViewDelegate> screen = screenOf(delegate)) {
      view().delegate = screen;
      return;
    }
    forwarder_ = [QV_TextViewForwarder new];
    forwarder_->delegate = delegate;
    view().delegate = delegate == nullptr ? nil : forwarder_;
  }

 private:
  QV_TextViewForwarder* forwarder_;  // text views don't keep their delegates
};

}  // namespace

std::shared_ptr<TextView> makeTextView(UITextView* textView) {
  return std::make_shared<TextViewView>(textView);
}

bool shouldInteract(TextViewDelegate& delegate, UITextView* textView, NSURL* url, NSRange range) {
  return delegate.shouldInteractWithURL(static_cast<TextView&>(*toView(textView)),
                                        toString(url.absoluteString),
                                        {range.location, range.length});
}

}  // namespace qv_commons::uikit
