#import "qv_commons/platform/uikit/QV_AgeGateRefusedViewController.h"

#include "qv_commons/age_gate/age_gate_refused_view_controller.h"
#include "qv_commons/platform/platform.h"
#import "qv_commons/platform/uikit/uikit_controller.h"
#import "qv_commons/platform/uikit/uikit_text_view.h"

@implementation QV_AgeGateRefusedViewController

+ (qv_commons::LayoutScreenFactory)screenFactory {
  return [](std::unique_ptr<qv_commons::ViewController> native) {
    return std::make_shared<qv_commons::QV_AgeGateRefusedViewController>(
        std::move(native), qv_commons::currentPlatform());
  };
}

- (UIView*)bg {
  return [self viewForOutlet:"bg"];
}
- (void)setBg:(UIView*)bg {
  [self setView:bg forOutlet:"bg"];
}

- (UITextView*)contact {
  return static_cast<UITextView*>([self viewForOutlet:"contact"]);
}
- (void)setContact:(UITextView*)contact {
  [self setView:contact forOutlet:"contact"];
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

- (BOOL)textView:(UITextView*)textView
    shouldInteractWithURL:(NSURL*)URL
                  inRange:(NSRange)characterRange
              interaction:(UITextItemInteraction)interaction {
  const auto alive = qv_commons::uikit::retainedViewController(self);
  auto& screen = static_cast<qv_commons::QV_AgeGateRefusedViewController&>(self.screen);
  return qv_commons::uikit::shouldInteract(screen, textView, URL, characterRange);
}

@end
