#pragma once

#import "UIView.h"

NS_ASSUME_NONNULL_BEGIN

extern NSAttributedStringKey const NSForegroundColorAttributeName;
extern NSAttributedStringKey const NSLinkAttributeName;

typedef NS_ENUM(NSInteger, UITextItemInteraction) {
  UITextItemInteractionInvokeDefaultAction,
  UITextItemInteractionPresentActions,
  UITextItemInteractionPreview,
};

@class UITextView;

@protocol UITextViewDelegate <NSObject>
@optional
- (BOOL)textView:(UITextView*)textView
    shouldInteractWithURL:(NSURL*)URL
                  inRange:(NSRange)characterRange
              interaction:(UITextItemInteraction)interaction;
@end

@interface UIPasteboard : NSObject
@property(class, nonatomic, readonly) UIPasteboard* generalPasteboard;
@property(nonatomic, copy, nullable) NSString* string;
@end

@interface UITextView : UIScrollView
@property(nonatomic, weak, nullable) id<UITextViewDelegate> delegate;
@property(nonatomic, copy, null_resettable) NSString* text;
@property(nonatomic, copy, null_resettable) NSAttributedString* attributedText;
@property(nonatomic, copy, null_resettable)
    NSDictionary<NSAttributedStringKey, id>* linkTextAttributes;
@property(nonatomic, strong, nullable) UIColor* textColor;
@property(nonatomic, getter=isEditable) BOOL editable;
@property(nonatomic, getter=isSelectable) BOOL selectable;
@property(nonatomic) NSRange selectedRange;
@end

NS_ASSUME_NONNULL_END
