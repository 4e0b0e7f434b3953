// What an app has around its screens: declarations alone, so that the example app compiles.
#pragma once

#import "UIControl.h"
#import "UIScreen.h"
#import "UIViewController.h"

NS_ASSUME_NONNULL_BEGIN

typedef NSString* UIApplicationLaunchOptionsKey;

@class UISceneSession;
@class UISceneConnectionOptions;

API_AVAILABLE(ios(13.0))
@interface UIScene : UIResponder
@end

API_AVAILABLE(ios(13.0))
@interface UIWindowScene : UIScene
@end

API_AVAILABLE(ios(13.0))
@interface UISceneSession : NSObject
@end

API_AVAILABLE(ios(13.0))
@interface UISceneConnectionOptions : NSObject
@end

API_AVAILABLE(ios(13.0))
@protocol UISceneDelegate <NSObject>
@optional
- (void)scene:(UIScene*)scene
    willConnectToSession:(UISceneSession*)session
                 options:(UISceneConnectionOptions*)connectionOptions;
@end

@class UIWindow;

API_AVAILABLE(ios(13.0))
@protocol UIWindowSceneDelegate <UISceneDelegate>
@optional
@property(nonatomic, strong, nullable) UIWindow* window;
@end

@protocol UIApplicationDelegate <NSObject>
@optional
- (BOOL)application:(UIApplication*)application
    didFinishLaunchingWithOptions:
        (nullable NSDictionary<UIApplicationLaunchOptionsKey, id>*)launchOptions;
@property(nonatomic, strong, nullable) UIWindow* window;
@end

@interface UIWindow : UIView
- (instancetype)initWithWindowScene:(UIWindowScene*)windowScene API_AVAILABLE(ios(13.0));
@property(nonatomic, strong, nullable) UIViewController* rootViewController;
- (void)makeKeyAndVisible;
@end

@interface UIView (App)
- (instancetype)initWithFrame:(CGRect)frame;
- (void)sizeToFit;
@end

@interface UILabel (App)
@property(nonatomic) NSInteger numberOfLines;
@end

@interface UITextField (App)
@property(nonatomic, copy, nullable) NSString* placeholder;
@end

@interface UIViewController (App)
@property(nonatomic, readonly, nullable) UITabBarController* tabBarController;
- (void)viewDidAppear:(BOOL)animated;
@end

typedef NS_ENUM(NSInteger, UITableViewStyle) {
  UITableViewStylePlain,
  UITableViewStyleGrouped,
};

typedef NS_ENUM(NSInteger, UITableViewCellStyle) {
  UITableViewCellStyleDefault,
  UITableViewCellStyleValue1,
  UITableViewCellStyleValue2,
  UITableViewCellStyleSubtitle,
};

typedef NS_ENUM(NSInteger, UITableViewCellSelectionStyle) {
  UITableViewCellSelectionStyleNone,
  UITableViewCellSelectionStyleBlue,
  UITableViewCellSelectionStyleGray,
  UITableViewCellSelectionStyleDefault,
};

@interface UITableViewCell : UIView
- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(nullable NSString*)reuseIdentifier;
@property(nonatomic, readonly, strong, nullable) UILabel* textLabel;
@property(nonatomic, readonly, strong, nullable) UILabel* detailTextLabel;
@property(nonatomic) UITableViewCellSelectionStyle selectionStyle;
@end

@interface NSIndexPath (UITableView)
@property(nonatomic, readonly) NSInteger row;
@end

@interface UITableView : UIScrollView
@property(nonatomic, strong, nullable) UIView* tableHeaderView;
- (nullable __kindof UITableViewCell*)dequeueReusableCellWithIdentifier:(NSString*)identifier;
- (void)deselectRowAtIndexPath:(NSIndexPath*)indexPath animated:(BOOL)animated;
@end

@protocol UITableViewDelegate <NSObject>
@optional
- (void)tableView:(UITableView*)tableView didSelectRowAtIndexPath:(NSIndexPath*)indexPath;
@end

@protocol UITableViewDataSource <NSObject>
- (NSInteger)tableView:(UITableView*)tableView numberOfRowsInSection:(NSInteger)section;
- (UITableViewCell*)tableView:(UITableView*)tableView cellForRowAtIndexPath:(NSIndexPath*)indexPath;
@end

@interface UITableViewController : UIViewController <UITableViewDelegate, UITableViewDataSource>
- (instancetype)initWithStyle:(UITableViewStyle)style;
@property(nonatomic, strong, null_resettable) UITableView* tableView;
@end

#ifdef __cplusplus
extern "C"
#else
extern
#endif
    int
    UIApplicationMain(int argc, char* _Nullable argv[_Nonnull],
                      NSString* _Nullable principalClassName,
                      NSString* _Nullable delegateClassName);

NS_ASSUME_NONNULL_END
