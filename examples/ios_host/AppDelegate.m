#import "AppDelegate.h"

#import "RootViewController.h"

@implementation AppDelegate

- (BOOL)application:(UIApplication*)application
    didFinishLaunchingWithOptions:
        (nullable NSDictionary<UIApplicationLaunchOptionsKey, id>*)launchOptions {
  if (@available(iOS 13.0, *)) return YES;  // the scene makes its window
  self.window = [[UIWindow alloc] initWithFrame:UIScreen.mainScreen.bounds];
  self.window.rootViewController = [RootViewController new];
  [self.window makeKeyAndVisible];
  return YES;
}

@end
