// The UIKit side of a screen from a layout: owns the C++ screen and forwards to it.
//
// The class of a layout bears the layout's name. It derives from this one, declares the outlets as
// properties and the actions as methods, and lets both go to the C++ screen by name:
//
//     - (UILabel*)header {
//       return (UILabel*)[self viewForOutlet:"header"];
//     }
//     - (void)setHeader:(UILabel*)header {
//       [self setView:header forOutlet:"header"];
//     }
//     - (void)onConfirmPressed:(id)sender {
//       [self runAction:_cmd];
//     }
#pragma once

#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/layout_screen.h"

NS_ASSUME_NONNULL_BEGIN

@interface QV_LayoutViewController : UIViewController

// With a C++ screen from `factory` in place of the class's own.
- (instancetype)initWithNibName:(nullable NSString*)nibName
                         bundle:(nullable NSBundle*)bundle
                        factory:(const qv_commons::LayoutScreenFactory&)factory
    NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithNibName:(nullable NSString*)nibName bundle:(nullable NSBundle*)bundle;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;

// Makes the class's own C++ screen, with its defaults. A derived class overrides it.
+ (qv_commons::LayoutScreenFactory)screenFactory;

@property(nonatomic, readonly) qv_commons::LayoutScreen& screen;

// The view that the screen's outlet of that name refers to, weakly; nil where it is not connected.
// A view for which the screen has no outlet, or one of another class, is not kept.
- (nullable UIView*)viewForOutlet:(const char*)name;
- (void)setView:(nullable UIView*)view forOutlet:(const char*)name;

// Runs the screen's action of that selector; this screen stays alive meanwhile.
- (void)runAction:(SEL)selector;

@end

NS_ASSUME_NONNULL_END
