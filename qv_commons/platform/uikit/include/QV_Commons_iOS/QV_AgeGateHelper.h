#pragma once

#import <QV_Commons_iOS/QV_AgeGateColorTheme.h>
#import <QV_Commons_iOS/QV_Defines.h>
#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The age gate: makes sure that the user has stated a date of birth old enough for the app.
///
///     [QV_AgeGateHelper startAgeGateProcessWithViewController:self
///                                          minimumAgeRequired:16
///                                                  completion:^{ [self start]; }
///                                            contactUsHandler:nil
///                                                  colorTheme:QV_AgeGateColorTheme.defaultTheme
///                                                 privacyLink:@"https://example.com/privacy"
///                                          termsOfServiceLink:@"https://example.com/terms"];
///
/// The outcome is kept in the app's user defaults, under "QV_AgeGate_Shown" and
/// "QV_AgeGate_Blocked", and is never taken back. Main thread only.
NS_SWIFT_UI_ACTOR
QV_EXPORT
QV_APP_ONLY
@interface QV_AgeGateHelper : NSObject

/// Lets the user through, asks for the date of birth, or shows the refusal, as the user defaults
/// say.
///
/// A user let through before: calls `completion` before it returns and shows nothing. A user
/// refused before: shows the refusal. Otherwise shows the date-of-birth screen and returns at once.
///
/// @param viewController Presents the screens; kept by the date-of-birth screen.
/// @param minimumAgeRequired In whole years; taken as it is.
/// @param completion Called once when the user is let through, never for a user under age.
/// @param contactUsHandler Called with the refusal screen at each tap on its contact link.
/// @param colorTheme The colours of the screen that is shown.
/// @param privacyLink The address behind "Privacy Policy"; taken as it is, also where it is no URL.
/// @param termsOfServiceLink The address behind "Terms of Service", likewise.
+ (void)startAgeGateProcessWithViewController:(UIViewController*)viewController
                           minimumAgeRequired:(int64_t)minimumAgeRequired
                                   completion:(nullable void (^)(void))completion
                             contactUsHandler:(nullable void (^)(UIViewController* refusedScreen))
                                                  contactUsHandler
                                   colorTheme:(QV_AgeGateColorTheme*)colorTheme
                                  privacyLink:(NSString*)privacyLink
                           termsOfServiceLink:(NSString*)termsOfServiceLink
    NS_SWIFT_NAME(startAgeGateProcess(viewController:minimumAgeRequired:completion:contactUsHandler:colorTheme:privacyLink:termsOfServiceLink:));

@end

NS_ASSUME_NONNULL_END
