#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// Before 13.0, where there are no scenes, it has the window.
@interface AppDelegate : UIResponder <UIApplicationDelegate>
@property(nonatomic, strong, nullable) UIWindow* window;
@end

NS_ASSUME_NONNULL_END
