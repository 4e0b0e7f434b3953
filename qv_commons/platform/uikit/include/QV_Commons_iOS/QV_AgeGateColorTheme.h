#pragma once

#import <QV_Commons_iOS/QV_Defines.h>
#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The five colours of the age gate's screens.
///
/// The screens read them once, while they set up their views; colours that change with the look of
/// the screen work. It never changes, so it may be made and kept on any thread.
NS_SWIFT_SENDABLE
QV_EXPORT
@interface QV_AgeGateColorTheme : NSObject

/// A theme of exactly these colours.
///
/// @param backgroundColor The panel behind the content of both screens.
/// @param buttonBackgroundColor The confirm button.
/// @param buttonTextColor The title of the confirm button where it can be pressed.
/// @param textColor Headings and all text that is no link.
/// @param policiesTextColor Links, and the title of the confirm button where it can't be pressed.
- (instancetype)initWithBackgroundColor:(UIColor*)backgroundColor
                  buttonBackgroundColor:(UIColor*)buttonBackgroundColor
                        buttonTextColor:(UIColor*)buttonTextColor
                              textColor:(UIColor*)textColor
                      policiesTextColor:(UIColor*)policiesTextColor
    NS_SWIFT_NAME(init(backgroundColor:buttonBackgroundColor:buttonTextColor:textColor:policiesTextColor:));

/// A new theme of the stock colours: the dark ones where the device shows its dark look at this
/// moment (iOS 13.0 or later), the light ones otherwise. It does not follow a later change. Main
/// thread only.
+ (QV_AgeGateColorTheme*)defaultTheme NS_SWIFT_UI_ACTOR NS_SWIFT_NAME(defaultTheme());

/// There is no theme without colours: stops the process.
- (instancetype)init NS_UNAVAILABLE;

/// There is no theme without colours: stops the process.
+ (instancetype)new NS_UNAVAILABLE;

@end

NS_ASSUME_NONNULL_END
