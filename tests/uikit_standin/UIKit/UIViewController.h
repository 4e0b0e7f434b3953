#pragma once

#import "UIScreen.h"
#import "UIView.h"

NS_ASSUME_NONNULL_BEGIN

@protocol UIViewControllerTransitionCoordinatorContext <NSObject>
@end

@protocol UIViewControllerTransitionCoordinator <UIViewControllerTransitionCoordinatorContext>
- (BOOL)animateAlongsideTransition:
            (void (^_Nullable)(id<UIViewControllerTransitionCoordinatorContext> context))animation
                        completion:(void (^_Nullable)(
                                       id<UIViewControllerTransitionCoordinatorContext> context))
                                       completion;
@end

@interface UIViewController : UIResponder
- (instancetype)initWithNibName:(nullable NSString*)nibName
                         bundle:(nullable NSBundle*)bundle NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nonatomic, strong, null_resettable) UIView* view;
@property(nonatomic, readonly, getter=isViewLoaded) BOOL viewLoaded;
@property(nonatomic, copy, nullable) NSString* title;
@property(nonatomic, readonly, nullable) NSString* nibName;
@property(nonatomic, readonly, nullable) NSBundle* nibBundle;
@property(nonatomic, readonly, nullable) UIViewController* presentedViewController;
@property(nonatomic, readonly, nullable) UIViewController* presentingViewController;
// clang-format off
@property(nonatomic, getter=isModalInPresentation) BOOL modalInPresentation
    API_AVAILABLE(ios(13.0));
// clang-format on
@property(nonatomic) UIUserInterfaceStyle overrideUserInterfaceStyle API_AVAILABLE(ios(13.0));
@property(nonatomic, readonly, nullable) id<UIViewControllerTransitionCoordinator>
    transitionCoordinator;
- (void)viewDidLoad;
- (void)loadViewIfNeeded;
- (void)presentViewController:(UIViewController*)viewControllerToPresent
                     animated:(BOOL)flag
                   completion:(void (^_Nullable)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)flag completion:(void (^_Nullable)(void))completion;
@end

@interface UINavigationController : UIViewController
@property(nonatomic, copy) NSArray<__kindof UIViewController*>* viewControllers;
@property(nonatomic, readonly, nullable) UIViewController* visibleViewController;
@end

@interface UITabBarController : UIViewController
@property(nonatomic, copy, nullable) NSArray<__kindof UIViewController*>* viewControllers;
@property(nonatomic, assign, nullable) __kindof UIViewController* selectedViewController;
@end

typedef NS_ENUM(NSInteger, UIAlertActionStyle) {
  UIAlertActionStyleDefault = 0,
  UIAlertActionStyleCancel,
  UIAlertActionStyleDestructive,
};

typedef NS_ENUM(NSInteger, UIAlertControllerStyle) {
  UIAlertControllerStyleActionSheet = 0,
  UIAlertControllerStyleAlert,
};

@interface UIAlertAction : NSObject
+ (instancetype)actionWithTitle:(nullable NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^_Nullable)(UIAlertAction* action))handler;
@property(nonatomic, readonly, nullable) NSString* title;
@property(nonatomic, readonly) UIAlertActionStyle style;
@end

@interface UIAlertController : UIViewController
+ (instancetype)alertControllerWithTitle:(nullable NSString*)title
                                 message:(nullable NSString*)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle;
- (void)addAction:(UIAlertAction*)action;
@property(nonatomic, readonly) NSArray<UIAlertAction*>* actions;
@property(nonatomic, copy, nullable) NSString* message;
@property(nonatomic, readonly) UIAlertControllerStyle preferredStyle;
@end

NS_ASSUME_NONNULL_END
