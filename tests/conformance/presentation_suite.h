// Conformance of the presentation of view controllers.
#pragma once

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class PresentationConformance : public Suite {
 protected:
  using Screen = std::shared_ptr<ViewController>;

  void SetUp() override { root_ = adapter().makeRootScreen(); }

  Screen presented(ViewController& by) {
    Screen screen = adapter().makeScreen();
    by.presentViewController(screen, true, nullptr);
    adapter().settle();
    return screen;
  }

  Completion count() {
    return [this] { ++completions_; };
  }

  Screen root_;
  int completions_ = 0;
};

TEST_P(PresentationConformance, StartsWithNothing) {
  EXPECT_TRUE(adapter().isOnScreen(*root_));
  EXPECT_EQ(root_->presentedViewController(), nullptr);
  EXPECT_EQ(root_->presentingViewController(), nullptr);
  EXPECT_EQ(root_->childViewController(), nullptr);
  EXPECT_EQ(root_->kind(), ViewControllerKind::plain);
}

TEST_P(PresentationConformance, ShowsAScreenAndThenRunsTheCompletion) {
  const Screen screen = adapter().makeScreen();
  bool wasOnScreen = false;
  root_->presentViewController(screen, true, [&] {
    wasOnScreen = adapter().isOnScreen(*screen);
    ++completions_;
  });
  adapter().settle();
  EXPECT_EQ(completions_, 1);
  EXPECT_TRUE(wasOnScreen);
  EXPECT_EQ(root_->presentedViewController(), screen.get());
  EXPECT_EQ(screen->presentingViewController(), root_.get());
}

TEST_P(PresentationConformance, KeepsAliveWhatIsShownAndLetsGoOfWhatIsNot) {
  Screen screen = presented(*root_);
  const std::function<bool()> isThere = adapter().watch(screen);
  screen.reset();
  EXPECT_TRUE(isThere());
  root_->dismissViewController(true, nullptr);
  adapter().settle();
  EXPECT_FALSE(isThere());
}

TEST_P(PresentationConformance, KeepsAliveWhatPresentsUntilNothingIsShownOverIt) {
  Screen screen = presented(*root_);
  const Screen above = presented(*screen);
  const std::function<bool()> isThere = adapter().watch(screen);
  screen.reset();
  root_.reset();
  adapter().settle();
  EXPECT_TRUE(isThere());
  EXPECT_TRUE(adapter().isOnScreen(*above));
  ASSERT_NE(above->presentingViewController(), nullptr);
  above->presentingViewController()->dismissViewController(true, nullptr);
  adapter().settle();
  EXPECT_FALSE(adapter().isOnScreen(*above));
}

TEST_P(PresentationConformance, DismissesWhatItPresentsAndThenRunsTheCompletion) {
  const Screen screen = presented(*root_);
  bool wasOnScreen = true;
  root_->dismissViewController(true, [&] {
    wasOnScreen = adapter().isOnScreen(*screen);
    ++completions_;
  });
  adapter().settle();
  EXPECT_EQ(completions_, 1);
  EXPECT_FALSE(wasOnScreen);
  EXPECT_EQ(root_->presentedViewController(), nullptr);
  EXPECT_EQ(screen->presentingViewController(), nullptr);
  EXPECT_TRUE(adapter().isOnScreen(*root_));
}

TEST_P(PresentationConformance, AScreenThatPresentsNothingDismissesItself) {
  const Screen screen = presented(*root_);
  screen->dismissViewController(true, count());
  adapter().settle();
  EXPECT_EQ(completions_, 1);
  EXPECT_FALSE(adapter().isOnScreen(*screen));
  EXPECT_EQ(root_->presentedViewController(), nullptr);
}

TEST_P(PresentationConformance, DropsTheCompletionIfThereIsNothingToDismiss) {
  root_->dismissViewController(true, count());
  adapter().settle();
  EXPECT_EQ(completions_, 0);
  EXPECT_TRUE(adapter().isOnScreen(*root_));
}

TEST_P(PresentationConformance, DismissesAWholeStack) {
  const Screen first = presented(*root_);
  const Screen second = presented(*first);
  const Screen third = presented(*second);
  EXPECT_EQ(third->presentingViewController(), second.get());
  root_->dismissViewController(true, count());
  adapter().settle();
  EXPECT_EQ(completions_, 1);
  for (const Screen& screen : {first, second, third}) {
    EXPECT_FALSE(adapter().isOnScreen(*screen));
    EXPECT_EQ(screen->presentingViewController(), nullptr);
    EXPECT_EQ(screen->presentedViewController(), nullptr);
  }
}

TEST_P(PresentationConformance, AScreenInTheMiddleDismissesWhatIsAboveIt) {
  const Screen first = presented(*root_);
  const Screen second = presented(*first);
  first->dismissViewController(true, nullptr);
  adapter().settle();
  EXPECT_TRUE(adapter().isOnScreen(*first));
  EXPECT_FALSE(adapter().isOnScreen(*second));
  EXPECT_EQ(root_->presentedViewController(), first.get());
}

TEST_P(PresentationConformance, PutsASecondScreenOnTopAndEachCanGoByItself) {
  const Screen below = presented(*root_);
  const Screen above = presented(*root_);
  EXPECT_EQ(root_->presentedViewController(), above.get());
  below->dismissViewController(true, nullptr);
  adapter().settle();
  EXPECT_FALSE(adapter().isOnScreen(*below));
  EXPECT_TRUE(adapter().isOnScreen(*above));
  EXPECT_EQ(root_->presentedViewController(), above.get());
}

TEST_P(PresentationConformance, LeavesTheScreenBelowWhenTheTopGoes) {
  const Screen below = presented(*root_);
  const Screen above = presented(*root_);
  above->dismissViewController(true, nullptr);
  adapter().settle();
  EXPECT_TRUE(adapter().isOnScreen(*below));
  EXPECT_FALSE(adapter().isOnScreen(*above));
}

TEST_P(PresentationConformance, ShowsAScreenAgainAfterItWasDismissed) {
  const Screen screen = presented(*root_);
  root_->dismissViewController(true, nullptr);
  adapter().settle();
  root_->presentViewController(screen, true, nullptr);
  adapter().settle();
  EXPECT_TRUE(adapter().isOnScreen(*screen));
}

TEST_P(PresentationConformance, TheUserCanLeaveAScreen) {
  const Screen screen = presented(*root_);
  adapter().leave(*screen);
  adapter().settle();
  EXPECT_FALSE(adapter().isOnScreen(*screen));
  EXPECT_EQ(root_->presentedViewController(), nullptr);
}

TEST_P(PresentationConformance, TheUserCannotLeaveAScreenThatIsModal) {
  const Screen screen = presented(*root_);
  screen->setModalInPresentation(true);
  adapter().leave(*screen);
  adapter().settle();
  EXPECT_TRUE(adapter().isOnScreen(*screen));
  screen->setModalInPresentation(false);
  adapter().leave(*screen);
  adapter().settle();
  EXPECT_FALSE(adapter().isOnScreen(*screen));
}

}  // namespace qv_commons::conformance
