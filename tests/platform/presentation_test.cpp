#include "qv_commons/platform/presentation.h"

#include <gtest/gtest.h>
#include <utility>

#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/support_code/chain_link.h"

namespace qv_commons {
namespace {

using memory::MemoryController;

class Presentation : public testing::Test {
 protected:
  memory::MemoryPlatform memory;
  std::shared_ptr<ViewController> home = memory.makeViewController("home");
  std::shared_ptr<ViewController> first = memory.makeViewController("first");
  std::shared_ptr<ViewController> second = memory.makeViewController("second");

  static bool onScreen(const std::shared_ptr<ViewController>& controller) {
    return MemoryController::of(*controller).isOnScreen();
  }
};

TEST_F(Presentation, IsKnownToBothSides) {
  home->presentViewController(first, true, nullptr);
  EXPECT_EQ(home->presentedViewController(), first.get());
  EXPECT_EQ(first->presentingViewController(), home.get());
  EXPECT_EQ(home->presentingViewController(), nullptr);
  EXPECT_EQ(first->presentedViewController(), nullptr);
}

TEST_F(Presentation, DismissesItself) {
  home->presentViewController(first, true, nullptr);
  first->dismissViewController(true, nullptr);
  EXPECT_FALSE(onScreen(first));
  EXPECT_EQ(home->presentedViewController(), nullptr);
  EXPECT_EQ(first->presentingViewController(), nullptr);
}

TEST_F(Presentation, DismissesAllAboveTheOneThatIsAsked) {
  home->presentViewController(first, true, nullptr);
  first->presentViewController(second, true, nullptr);
  first->dismissViewController(true, nullptr);
  EXPECT_TRUE(onScreen(first));
  EXPECT_FALSE(onScreen(second));

  first->presentViewController(second, true, nullptr);
  home->dismissViewController(true, nullptr);
  EXPECT_FALSE(onScreen(first));
  EXPECT_EQ(home->presentedViewController(), nullptr);
}

TEST_F(Presentation, ShowsASecondOneOverTheFirstAndLetsEitherGo) {
  home->presentViewController(first, true, nullptr);
  home->presentViewController(second, true, nullptr);
  EXPECT_EQ(home->presentedViewController(), second.get());
  first->dismissViewController(true, nullptr);
  EXPECT_FALSE(onScreen(first));
  EXPECT_TRUE(onScreen(second));
  EXPECT_EQ(home->presentedViewController(), second.get());
}

TEST_F(Presentation, RunsCompletionsAfterTheTransition) {
  memory.transitions().setByHand(true);
  std::string order;
  home->presentViewController(first, true, [&] { order += "presented "; });
  EXPECT_EQ(order, "");
  memory.transitions().runAll();
  first->dismissViewController(true, [&] { order += "dismissed"; });
  EXPECT_FALSE(onScreen(first));
  EXPECT_EQ(order, "presented ");
  memory.transitions().runAll();
  EXPECT_EQ(order, "presented dismissed");
}

TEST_F(Presentation, KeepsWhatItShowsAliveUntilTheDismissalIsDone) {
  memory.transitions().setByHand(true);
  const std::weak_ptr<ViewController> watched = first;
  home->presentViewController(std::move(first), true, nullptr);
  EXPECT_FALSE(watched.expired());
  home->dismissViewController(true, nullptr);
  EXPECT_FALSE(watched.expired());
  memory.transitions().runAll();
  EXPECT_TRUE(watched.expired());
}

TEST_F(Presentation, DropsTheCompletionIfThereIsNothingToDismiss) {
  bool ran = false;
  home->dismissViewController(true, [&] { ran = true; });
  EXPECT_FALSE(ran);
}

TEST_F(Presentation, KeepsThePresenterAliveUntilTheDismissalIsDone) {
  memory.transitions().setByHand(true);
  const std::weak_ptr<ViewController> watched = home;
  home->presentViewController(first, true, nullptr);
  home->presentViewController(second, true, nullptr);
  home.reset();
  EXPECT_EQ(first->presentingViewController(), watched.lock().get());
  first->dismissViewController(true, nullptr);
  memory.transitions().runAll();
  EXPECT_FALSE(watched.expired());  // the second is still there
  second->dismissViewController(true, nullptr);
  EXPECT_FALSE(watched.expired());
  memory.transitions().runAll();
  EXPECT_TRUE(watched.expired());
}

TEST_F(Presentation, ReleasesAWholeStackThatNobodyElseKeeps) {
  std::weak_ptr<ViewController> watched[] = {home, first, second};
  home->presentViewController(first, true, nullptr);
  first->presentViewController(second, true, nullptr);
  first.reset();
  second.reset();
  std::exchange(home, nullptr)->dismissViewController(true, nullptr);
  for (const auto& controller : watched) EXPECT_TRUE(controller.expired());
}

TEST(PresentationOfAPlatform, EndsWithIt) {
  std::weak_ptr<ViewController> host;
  {
    memory::MemoryPlatform memory;
    const auto home = memory.makeViewController("home");
    home->presentViewController(memory.makeViewController("first"), true, nullptr);
    host = home;
  }
  EXPECT_TRUE(host.expired());
}

TEST_F(Presentation, OfAControllerOfAnotherAdapterIsAFatalError) {
  const auto stranger = std::make_shared<test::ChainLink>();
  EXPECT_DEATH(NativeController::of(*stranger),
               "QV_Commons fatal error: a view controller belongs to another adapter");
}

TEST_F(Presentation, OfWhatIsOnTheScreenAlreadyIsAFatalError) {
  home->presentViewController(first, true, nullptr);
  EXPECT_DEATH(second->presentViewController(first, true, nullptr),
               "QV_Commons fatal error: a view controller is presented twice");
}

TEST_F(Presentation, IsSwipedAwayUnlessModal) {
  home->presentViewController(first, true, nullptr);
  first->setModalInPresentation(true);
  EXPECT_FALSE(MemoryController::of(*first).swipeAway());
  EXPECT_TRUE(onScreen(first));
  first->setModalInPresentation(false);
  EXPECT_TRUE(MemoryController::of(*first).swipeAway());
  EXPECT_FALSE(onScreen(first));
  EXPECT_FALSE(MemoryController::of(*first).swipeAway());
}

}  // namespace
}  // namespace qv_commons
