// The doubles where they have a behaviour of their own: colours, and controllers that present.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#import "tests/uikit_standin/standin.h"

namespace {

TEST(StandinColor, IsComparedByItsComponents) {
  UIColor* color = [UIColor colorWithRed:0.1 green:0.2 blue:0.3 alpha:0.4];
  UIColor* same = [UIColor colorWithRed:0.1 green:0.2 blue:0.3 alpha:0.4];
  EXPECT_TRUE([color isEqual:same]);
  EXPECT_EQ(color.hash, same.hash);
  EXPECT_FALSE([color isEqual:[UIColor colorWithRed:0.1 green:0.2 blue:0.3 alpha:0.5]]);
  EXPECT_FALSE([color isEqual:@"a colour"]);
}

TEST(StandinColor, IsNoGreyThoughItsComponentsAreEqual) {
  EXPECT_FALSE([UIColor.whiteColor isEqual:[UIColor colorWithRed:1 green:1 blue:1 alpha:1]]);
  EXPECT_TRUE([UIColor.whiteColor isEqual:UIColor.whiteColor]);
}

class StandinPresentation : public testing::Test {
 protected:
  static UIViewController* make() {
    return [[UIViewController alloc] initWithNibName:nil bundle:nil];
  }
  void present(UIViewController* controller, BOOL animated = YES) {
    [home presentViewController:controller animated:animated completion:nil];
  }
  void dismiss(BOOL animated = YES) {
    [home dismissViewControllerAnimated:animated completion:nil];
  }

  UIViewController* home = make();
};

TEST_F(StandinPresentation, HasACoordinatorUntilTheTransitionEnds) {
  UIViewController* screen = make();
  EXPECT_EQ(home.transitionCoordinator, nil);
  present(screen);
  EXPECT_NE(home.transitionCoordinator, nil);
  EXPECT_EQ(screen.transitionCoordinator, home.transitionCoordinator);
  __block int ends = 0;
  [home.transitionCoordinator animateAlongsideTransition:nil
                                              completion:^(id) {
                                                EXPECT_EQ(home.transitionCoordinator, nil);
                                                ++ends;
                                              }];
  EXPECT_EQ(ends, 0);
  standin::finishTransitions();
  EXPECT_EQ(ends, 1);
}

TEST_F(StandinPresentation, HasNoCoordinatorWhereNothingIsAnimated) {
  UIViewController* screen = make();
  present(screen, NO);
  EXPECT_EQ(home.transitionCoordinator, nil);
  dismiss(NO);
  EXPECT_EQ(home.transitionCoordinator, nil);
}

TEST_F(StandinPresentation, TakesASecondScreenUnlessItIsStrict) {
  UIViewController* first = make();
  UIViewController* second = make();
  present(first);
  present(second);
  EXPECT_EQ(home.presentedViewController, second);
  standin::setStrictPresentation(true);
  UIViewController* third = make();
  present(third);
  EXPECT_EQ(home.presentedViewController, second);
  EXPECT_EQ(third.presentingViewController, nil);
}

TEST_F(StandinPresentation, LosesWhatComesWhileItDismissesWhereItIsStrict) {
  standin::setStrictPresentation(true);
  UIViewController* first = make();
  UIViewController* second = make();
  present(first);
  standin::finishTransitions();
  dismiss();
  present(second);
  EXPECT_EQ(home.presentedViewController, nil);
  standin::finishTransitions();
  EXPECT_EQ(home.presentedViewController, nil);
  present(second);
  EXPECT_EQ(home.presentedViewController, second);
}

TEST_F(StandinPresentation, KeepsWhatPresentsAliveWhileItPresents) {
  __weak UIViewController* presenter;
  @autoreleasepool {
    UIViewController* screen = make();
    @autoreleasepool {
      home = make();
      presenter = home;
      present(screen, NO);
      home = nil;
    }
    EXPECT_NE(presenter, nil);
    [screen dismissViewControllerAnimated:NO completion:nil];
  }
  EXPECT_EQ(presenter, nil);
}

}  // namespace
