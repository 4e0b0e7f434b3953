#pragma once

#import "UIKitDefines.h"

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, UIUserInterfaceStyle) {
  UIUserInterfaceStyleUnspecified,
  UIUserInterfaceStyleLight,
  UIUserInterfaceStyleDark,
} API_AVAILABLE(ios(12.0));

@interface UITraitCollection : NSObject
@property(nonatomic, readonly) UIUserInterfaceStyle userInterfaceStyle API_AVAILABLE(ios(12.0));
@end

@interface UIScreen : NSObject
@property(class, nonatomic, readonly) UIScreen* mainScreen;
@property(nonatomic, readonly) CGRect bounds;
@property(nonatomic, readonly) UITraitCollection* traitCollection;
@end

@interface UIDevice : NSObject
@property(class, nonatomic, readonly) UIDevice* currentDevice;
@property(nonatomic, readonly, strong) NSString* systemVersion;
@property(nonatomic, readonly, strong) NSString* localizedModel;
@end

typedef NSString* UIApplicationOpenExternalURLOptionsKey;

@interface UIApplication : NSObject
@property(class, nonatomic, readonly) UIApplication* sharedApplication;
- (void)openURL:(NSURL*)url
              options:(NSDictionary<UIApplicationOpenExternalURLOptionsKey, id>*)options
    completionHandler:(void (^_Nullable)(BOOL success))completion;
@end

NS_ASSUME_NONNULL_END
