#import <UIKit/UIKit.h>

NS_ASSUME_NONNULL_BEGIN

/// Named in Info.plist. Each window of the app is a scene of its own.
API_AVAILABLE(ios(13.0))
@interface SceneDelegate : UIResponder <UIWindowSceneDelegate>
@property(nonatomic, strong, nullable) UIWindow* window;
@end

NS_ASSUME_NONNULL_END
