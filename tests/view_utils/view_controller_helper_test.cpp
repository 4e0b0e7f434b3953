#include "qv_commons/view_utils/view_controller_helper.h"

#include <cstddef>
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <pthread.h>
#include <string>
#include <utility>
#include <vector>

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/view_utils/top_view_controller.h"

#include "tests/support_code/allocation_counter.h"
#include "tests/support_code/chain_link.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;
using Kind = ViewControllerKind;
using Questions = std::vector<std::string>;

// A controller with the relations that a test gives it, which records what it is asked.
class Asked final : public ViewController {
 public:
  Asked(Questions& questions, std::string name, Kind kind = Kind::plain)
      : ViewController(kind), questions_(questions), name_(std::move(name)) {}

  ViewController* child = nullptr;
  ViewController* presented = nullptr;
  ViewController* presenting = nullptr;

  void presentViewController(std::shared_ptr<ViewController>, bool, Completion) override { fail(); }
  void dismissViewController(bool, Completion) override { fail(); }
  void setModalInPresentation(bool) override { fail(); }
  void setOverrideUserInterfaceStyle(UserInterfaceStyle) override { fail(); }
  std::shared_ptr<ViewController> retained() override {
    fail();
    return nullptr;
  }
  ViewController* presentedViewController() const override { return note(".presented", presented); }
  ViewController* presentingViewController() const override {
    return note(".presenting", presenting);
  }
  ViewController* childViewController() const override { return note(".child", child); }

 private:
  static void fail() { ADD_FAILURE() << "the look-up changes nothing"; }

  template <class Answer>
  Answer note(const char* question, Answer answer) const {
    questions_.push_back(name_ + question);
    return answer;
  }

  Questions& questions_;
  std::string name_;
};

class TopViewController : public testing::Test {
 protected:
  static ViewController* topOf(ViewController* controller) {
    return QV_ViewControllerHelper::topViewController(controller);
  }

  Questions questions;
  Asked plain{questions, "plain"};
  Asked other{questions, "other"};
  Asked navigation{questions, "navigation", Kind::navigation};
  Asked tabs{questions, "tabs", Kind::tabBar};
  Asked alert{questions, "alert", Kind::alert};
};

TEST_F(TopViewController, OfNothingIsNothing) {
  EXPECT_EQ(topOf(nullptr), nullptr);
}

TEST_F(TopViewController, OfAPlainOneIsItself) {
  plain.presenting = &other;
  plain.child = &other;
  EXPECT_EQ(topOf(&plain), &plain);
  EXPECT_THAT(questions, ElementsAre("plain.presented"));
}

TEST_F(TopViewController, FollowsWhatAPlainOnePresents) {
  plain.presented = &other;
  EXPECT_EQ(topOf(&plain), &other);
  EXPECT_THAT(questions, ElementsAre("plain.presented", "other.presented"));
}

TEST_F(TopViewController, FollowsTheVisibleOneAndNotWhatTheNavigationPresents) {
  navigation.child = &plain;
  navigation.presented = &other;
  EXPECT_EQ(topOf(&navigation), &plain);
  EXPECT_THAT(questions, ElementsAre("navigation.child", "plain.presented"));
}

TEST_F(TopViewController, OfANavigationThatShowsNothingIsNothingWhateverItPresents) {
  navigation.presented = &other;
  EXPECT_EQ(topOf(&navigation), nullptr);
  EXPECT_THAT(questions, ElementsAre("navigation.child"));
}

TEST_F(TopViewController, FollowsTheSelectedTabAndNotWhatTheTabsPresent) {
  tabs.child = &plain;
  tabs.presented = &other;
  EXPECT_EQ(topOf(&tabs), &plain);
  EXPECT_THAT(questions, ElementsAre("tabs.child", "plain.presented"));
}

TEST_F(TopViewController, FollowsWhatTabsWithoutASelectedOnePresent) {
  tabs.presented = &other;
  EXPECT_EQ(topOf(&tabs), &other);
  EXPECT_THAT(questions, ElementsAre("tabs.child", "tabs.presented", "other.presented"));
}

TEST_F(TopViewController, OfTabsWithoutASelectedOneAreThemselves) {
  EXPECT_EQ(topOf(&tabs), &tabs);
  EXPECT_THAT(questions, ElementsAre("tabs.child", "tabs.presented"));
}

TEST_F(TopViewController, FollowsTheSelectedTabInsideOfANavigation) {
  navigation.child = &tabs;
  tabs.child = &plain;
  plain.presented = &other;
  EXPECT_EQ(topOf(&navigation), &other);
}

TEST_F(TopViewController, IsNothingWhereANavigationOnTheWayShowsNothing) {
  tabs.child = &navigation;
  tabs.presented = &other;
  EXPECT_EQ(topOf(&tabs), nullptr);
}

TEST_F(TopViewController, OfAnAlertIsWhatPresentsIt) {
  plain.presented = &alert;
  alert.presenting = &plain;
  EXPECT_EQ(topOf(&plain), &plain);
  EXPECT_THAT(questions, ElementsAre("plain.presented", "alert.presented", "alert.presenting"));
}

TEST_F(TopViewController, LooksNoFurtherThanWhatPresentsTheAlert) {
  alert.presenting = &navigation;
  navigation.child = &other;
  EXPECT_EQ(topOf(&alert), &navigation);
  EXPECT_THAT(questions, ElementsAre("alert.presented", "alert.presenting"));
}

TEST_F(TopViewController, OfAnAlertThatNobodyPresentsIsNothing) {
  EXPECT_EQ(topOf(&alert), nullptr);
}

TEST_F(TopViewController, FollowsWhatAnAlertPresents) {
  alert.presented = &other;
  alert.presenting = &plain;
  EXPECT_EQ(topOf(&alert), &other);
  EXPECT_THAT(questions, ElementsAre("alert.presented", "other.presented"));
}

TEST(TopViewControllerInMemory, FollowsRealPresentations) {
  memory::MemoryPlatform platform;
  const auto tabs = platform.makeViewController("tabs", Kind::tabBar);
  const auto home = platform.makeViewController("home");
  const auto settings = platform.makeViewController("settings");
  memory::MemoryController::of(*tabs).setChildViewController(home.get());
  home->presentViewController(settings, true, nullptr);
  const auto alert = platform.viewControllers().makeAlertController("Sorry", "", AlertStyle::alert);
  settings->presentViewController(alert, true, nullptr);
  EXPECT_EQ(QV_ViewControllerHelper::topViewController(tabs.get()), settings.get());
}

struct Search {
  ViewController* from;
  ViewController* found = nullptr;
  std::int64_t allocations = -1;

  static void* run(void* argument) {
    auto& search = *static_cast<Search*>(argument);
    test::AllocationCounter counter;
    search.found = QV_ViewControllerHelper::topViewController(search.from);
    search.allocations = counter.calls();
    return nullptr;
  }
};

// On a stack of 256 KB, of which a call for each controller would leave no byte.
TEST(LongChain, OfTenMillionIsFollowedOnASmallStackWithoutAllocation) {
  constexpr std::size_t kLength = 10'000'000;
  const auto chain = std::make_unique<test::ChainLink[]>(kLength);
  for (std::size_t i = 0; i + 1 < kLength; ++i) chain[i].present(chain[i + 1]);

  Search search{&chain[0]};
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
  pthread_t thread;
  ASSERT_EQ(pthread_create(&thread, &attributes, Search::run, &search), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);

  EXPECT_EQ(search.found, &chain[kLength - 1]);
  EXPECT_EQ(search.allocations, 0);
}

// Controllers of another type, as an adapter has them: numbers, 0 for none, each presenting the
// next one up to the last.
struct NumberRelations {
  using Controller = int;
  int last;

  Kind kind(int controller) const { return controller == last ? Kind::alert : Kind::plain; }
  int child(int) const { return 0; }
  int presented(int controller) const { return controller == last ? 0 : controller + 1; }
  int presenting(int controller) const { return controller - 1; }
};

TEST(TopViewControllerFrom, WalksControllersOfAnotherType) {
  EXPECT_EQ(topViewControllerFrom(3, NumberRelations{9}), 8);
  EXPECT_EQ(topViewControllerFrom(0, NumberRelations{9}), 0);
}

}  // namespace
}  // namespace qv_commons
