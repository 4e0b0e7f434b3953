// What the memory adapter notes of what is asked of it, and where there is nothing to ask.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons::memory {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MemoryRecord : public testing::Test {
 protected:
  std::vector<std::string> noted() {
    std::vector<std::string> lines = platform_.record().lines();
    platform_.record().clear();
    return lines;
  }

  MemoryPlatform platform_;
};

TEST_F(MemoryRecord, TellsHowScreensComeAndGo) {
  const auto below = platform_.makeViewController("below");
  const auto above = platform_.makeViewController("above");
  int done = 0;
  below->presentViewController(above, false, nullptr);
  below->dismissViewController(false, [&] { ++done; });
  below->presentViewController(above, false, [&] { ++done; });
  below->dismissViewController(true, [&] { ++done; });
  EXPECT_THAT(noted(), ElementsAre("below.presentViewController above at once, no completion",
                                   "below.dismissViewController at once, with completion",
                                   "below.presentViewController above at once, with completion",
                                   "below.dismissViewController animated, with completion"));
  EXPECT_EQ(done, 3);
}

TEST_F(MemoryRecord, TellsTheLooksOfAScreen) {
  const auto screen = platform_.makeViewController("screen");
  for (const auto style :
       {UserInterfaceStyle::unspecified, UserInterfaceStyle::light, UserInterfaceStyle::dark}) {
    screen->setOverrideUserInterfaceStyle(style);
  }
  EXPECT_THAT(noted(), ElementsAre("screen.setOverrideUserInterfaceStyle unspecified",
                                   "screen.setOverrideUserInterfaceStyle light",
                                   "screen.setOverrideUserInterfaceStyle dark"));
}

TEST_F(MemoryRecord, TellsAMailToSeveral) {
  const auto composer = platform_.viewControllers().makeMailComposer();
  composer->setToRecipients({"a@example.com", "b@example.com"});
  composer->setMessageBody("<b>", true);
  EXPECT_THAT(noted(), ElementsAre("viewControllers.makeMailComposer composer1",
                                   R"(composer1.setToRecipients "a@example.com", "b@example.com")",
                                   "composer1.setMessageBody 3 bytes, HTML"));
}

TEST_F(MemoryRecord, TellsAnActionSheetFromAnAlert) {
  platform_.viewControllers().makeAlertController("Title", "Text", AlertStyle::actionSheet);
  EXPECT_THAT(
      noted(),
      ElementsAre(R"(viewControllers.makeAlertController alert1 "Title" "Text" actionSheet)"));
}

TEST_F(MemoryRecord, HasWhatAnAlertShows) {
  const auto shown =
      platform_.viewControllers().makeAlertController("Title", "Text", AlertStyle::alert);
  shown->addAction("OK", AlertActionStyle::standard, nullptr);
  const MemoryAlert& alert = *platform_.viewControllers().alerts().back();
  EXPECT_EQ(alert.texts().title, "Title");
  EXPECT_EQ(alert.texts().message, "Text");
  ASSERT_EQ(alert.actions().size(), 1U);
  EXPECT_EQ(alert.actions()[0].title, "OK");
}

TEST_F(MemoryRecord, TakesNothingWhilePaused) {
  platform_.record().setPaused(true);
  platform_.record().add("unheard");
  platform_.record().setPaused(false);
  platform_.record().add("heard");
  EXPECT_THAT(noted(), ElementsAre("heard"));
}

TEST(MemoryTransitions, HaveNothingToRunWhereNothingWaits) {
  Transitions transitions;
  transitions.setByHand(true);
  transitions.runNext();
  int runs = 0;
  transitions.finish([&] { ++runs; });
  EXPECT_EQ(transitions.waiting(), 1U);
  transitions.runNext();
  transitions.runNext();
  EXPECT_EQ(runs, 1);
}

class TextViewInMemory : public testing::Test {
 protected:
  MemoryTextView make(std::optional<std::string> text) {
    ViewLayout layout;
    layout.text = std::move(text);
    return {record_, "text", layout};
  }

  Record record_;
};

TEST_F(TextViewInMemory, GivesItsTextAndPartsOfIt) {
  const MemoryTextView view = make("A 👍 b");
  EXPECT_EQ(view.text(), "A 👍 b");
  EXPECT_EQ(view.textIn({2, 2}), "👍");
  EXPECT_EQ(view.textIn({5, 9}), "b");
  EXPECT_EQ(view.textIn({6, 1}), "");
  EXPECT_EQ(view.textIn({7, 1}), "");
}

TEST_F(TextViewInMemory, HasNeitherTextNorColourWithoutAText) {
  MemoryTextView view = make(std::nullopt);
  view.setTextColor({1, 0, 0});
  EXPECT_EQ(view.text(), "");
  EXPECT_EQ(view.textIn({0, 1}), "");
  EXPECT_EQ(view.textLength(), std::nullopt);
  EXPECT_EQ(view.colorAt(0), std::nullopt);
}

TEST_F(TextViewInMemory, TakesAndForgetsADelegate) {
  MemoryTextView view = make("text");
  view.setDelegate(nullptr);
  EXPECT_EQ(view.delegate(), nullptr);
  EXPECT_THAT(record_.lines(), ElementsAre("text.setDelegate none"));
}

TEST_F(TextViewInMemory, ClipsOrNot) {
  MemoryView view(record_, "view");
  view.setClipsToBounds(true);
  view.setClipsToBounds(false);
  EXPECT_THAT(record_.lines(),
              ElementsAre("view.setClipsToBounds true", "view.setClipsToBounds false"));
}

}  // namespace
}  // namespace qv_commons::memory
