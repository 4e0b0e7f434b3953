// A stand-in for the part of MessageUI that the iOS adapter uses.
#pragma once

#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, MFMailComposeResult) {
  MFMailComposeResultCancelled,
  MFMailComposeResultSaved,
  MFMailComposeResultSent,
  MFMailComposeResultFailed,
};

@class MFMailComposeViewController;

@protocol MFMailComposeViewControllerDelegate <NSObject>
@optional
- (void)mailComposeController:(MFMailComposeViewController*)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(nullable NSError*)error;
@end

@interface MFMailComposeViewController : UINavigationController
+ (BOOL)canSendMail;
@property(nonatomic, weak, nullable) id<MFMailComposeViewControllerDelegate> mailComposeDelegate;
- (void)setSubject:(NSString*)subject;
- (void)setToRecipients:(nullable NSArray<NSString*>*)toRecipients;
- (void)setMessageBody:(NSString*)body isHTML:(BOOL)isHTML;
- (void)addAttachmentData:(NSData*)attachment
                 mimeType:(NSString*)mimeType
                 fileName:(NSString*)filename;
@end

NS_ASSUME_NONNULL_END
