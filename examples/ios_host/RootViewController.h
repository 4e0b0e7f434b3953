#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// The app's two pages: the services (Objective-C) and the times (Swift).
@interface RootViewController : UITabBarController
@end

NS_ASSUME_NONNULL_END
