#pragma once

#import <QV_Commons_iOS/QV_Defines.h>
#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// Finds the view controller on top of the screen. Main thread only.
NS_SWIFT_UI_ACTOR
QV_EXPORT
@interface QV_ViewControllerHelper : NSObject

/// Walks from `controller` through navigation and tab bar controllers and presented controllers to
/// the one on top; an alert on top gives the controller that presented it. Nil where the walk ends
/// in nothing: for nil, and for a navigation controller that shows nothing.
+ (nullable UIViewController*)topViewControllerWithController:(nullable UIViewController*)controller
    NS_SWIFT_NAME(topViewController(controller:));

@end

NS_ASSUME_NONNULL_END
