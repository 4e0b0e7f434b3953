#pragma once

#import <MessageUI/MessageUI.h>
#import <QV_Commons_iOS/QV_Defines.h>
#import <QV_Commons_iOS/QV_SupportHelperDelegate.h>
#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The support e-mail: a pre-filled composer, or an alert where the device can't send mail.
///
///     [QV_SupportHelper.shared contactSupportWithViewController:self
///                                                         email:@"support@example.com"
///                                                       subject:@"Help with Notes"
///                                                     purchases:@[ @"pro_monthly" ]
///                                                openingMessage:nil
///                                            additionalMetadata:@"User: 42"
///                                                      delegate:self];
///
/// Main thread only; `shared` alone may be asked for on any thread.
NS_SWIFT_UI_ACTOR
QV_EXPORT
QV_APP_ONLY
@interface QV_SupportHelper : NSObject <MFMailComposeViewControllerDelegate>

/// The one instance for the whole process. An instance of your own has a delegate slot of its own;
/// keep it until its composer is gone.
@property(class, nonatomic, readonly) QV_SupportHelper* shared NS_SWIFT_NONISOLATED;

/// Opens a composer on `viewController` with the app's and the device's particulars in the body and
/// the store's receipt attached, if there is one.
///
/// There is one delegate slot: a request made while a composer is open replaces its delegate, and
/// the first composer to finish tells that one and empties the slot. Where the device can't send
/// mail, the slot stays as it is and nobody is told.
///
/// @param viewController Presents the composer or the alert.
/// @param email The address, as it is.
/// @param subject The subject, as it is.
/// @param purchases The user's purchases, listed in the body in this order.
/// @param openingMessage The first line; nil: "Reason for contacting support:".
/// @param additionalMetadata The end of the body, as it is.
/// @param delegate Told when the composer is gone; not kept alive, and skipped once it is gone.
- (void)contactSupportWithViewController:(UIViewController*)viewController
                                   email:(NSString*)email
                                 subject:(NSString*)subject
                               purchases:(NSArray<NSString*>*)purchases
                          openingMessage:(nullable NSString*)openingMessage
                      additionalMetadata:(nullable NSString*)additionalMetadata
                                delegate:(nullable id<QV_SupportHelperDelegate>)delegate
    NS_SWIFT_NAME(contactSupport(viewController:email:subject:purchases:openingMessage:additionalMetadata:delegate:));

@end

NS_ASSUME_NONNULL_END
