// The user in front of the memory adapter's screens, and layouts that are wrong.
#include "qv_commons/platform/memory/memory_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons::memory {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A screen with one view of each class, which counts its actions and answers for its links.
class Form final : public LayoutScreen, public TextViewDelegate {
 public:
  using LayoutScreen::LayoutScreen;

  std::weak_ptr<Button> button;
  std::weak_ptr<DatePicker> picker;
  std::weak_ptr<TextView> text;
  std::vector<std::string> events;
  bool systemMayAct = true;

  std::string_view headingOutlet() const override { return "text"; }
  std::vector<Outlet> outlets() override {
    return {{"button", button}, {"picker", picker}, {"text", text}};
  }
  std::vector<Action> actions() override {
    return {{"onButton:", [this] { events.emplace_back("button"); }},
            {"onPicker:", [this] { events.emplace_back("picker"); }}};
  }
  void viewDidLoad() override { events.emplace_back("loaded"); }
  bool shouldInteractWithURL(TextView&, std::string_view url, TextRange range) override {
    events.push_back("link " + std::string(url) + " " + std::to_string(range.location) + " " +
                     std::to_string(range.length));
    return systemMayAct;
  }
};

class MemoryScreens : public testing::Test {
 protected:
  MemoryScreens() {
    MemoryLayout& layout = platform.mainBundle().layouts["Form"];
    layout["button"].viewClass = ViewClass::button;
    layout["button"].action = "onButton:";
    layout["picker"].viewClass = ViewClass::datePicker;
    layout["picker"].action = "onPicker:";
    layout["text"].viewClass = ViewClass::textView;
    layout["text"].text = "Read the rules";
  }

  ViewLayout& layoutOf(const std::string& view) {
    return platform.mainBundle().layouts["Form"][view];
  }

  std::shared_ptr<Form> makeForm() {
    return std::static_pointer_cast<Form>(platform.viewControllers().initWithNibName(
        "Form", nullptr, [](std::unique_ptr<ViewController> native) {
          return std::make_shared<Form>(std::move(native));
        }));
  }

  std::shared_ptr<Form> presentForm() {
    auto form = makeForm();
    home->presentViewController(form, true, nullptr);
    form->events.clear();
    return form;
  }

  static void addLink(Form& form, const std::string& value) {
    form.text.lock()->addLinks({{value, {9, 5}}}, {});
  }

  MemoryScreen& screen() { return *platform.viewControllers().lastScreen(); }

  MemoryPlatform platform;
  std::shared_ptr<ViewController> home = platform.makeViewController("home");
};

TEST_F(MemoryScreens, LookInTheMainBundleWhereThereIsNoOther) {
  const auto form = makeForm();
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("viewControllers.initWithNibName screen1 Form mainBundle"));
  screen().load();
  EXPECT_THAT(form->events, ElementsAre("loaded"));
}

TEST_F(MemoryScreens, LoadOnce) {
  const auto form = makeForm();
  screen().load();
  screen().load();
  home->presentViewController(form, true, nullptr);
  EXPECT_THAT(form->events, ElementsAre("loaded"));
}

TEST_F(MemoryScreens, RunTheActionsOfTheirViews) {
  const auto form = presentForm();
  EXPECT_TRUE(screen().tap("button"));
  EXPECT_TRUE(screen().pick("picker", instantAt(5)));
  EXPECT_THAT(form->events, ElementsAre("button", "picker"));
  EXPECT_EQ(form->picker.lock()->date(), instantAt(5));
}

TEST_F(MemoryScreens, LetADisabledButtonAlone) {
  const auto form = presentForm();
  form->button.lock()->setEnabled(false);
  EXPECT_FALSE(screen().tap("button"));
  EXPECT_THAT(form->events, IsEmpty());
}

TEST_F(MemoryScreens, CannotBeTouchedUnlessTheyAreOnTop) {
  const auto form = makeForm();
  screen().load();
  form->events.clear();
  EXPECT_FALSE(screen().tap("button"));
  home->presentViewController(form, true, nullptr);
  form->presentViewController(platform.makeViewController("above"), true, nullptr);
  addLink(*form, "https://example.com");
  EXPECT_FALSE(screen().tap("button"));
  EXPECT_FALSE(screen().pick("picker", instantAt(5)));
  EXPECT_FALSE(screen().tapLink("text", 9));
  EXPECT_THAT(form->events, IsEmpty());
}

TEST_F(MemoryScreens, HaveViewsWithoutActions) {
  layoutOf("button").action = "";
  const auto form = presentForm();
  EXPECT_TRUE(screen().tap("button"));
  EXPECT_THAT(form->events, IsEmpty());
}

TEST_F(MemoryScreens, KeepTheirPickersBelowTheMaximum) {
  const auto form = presentForm();
  form->picker.lock()->setMaximumDate(instantAt(100));
  EXPECT_TRUE(screen().pick("picker", instantAt(101)));
  EXPECT_EQ(form->picker.lock()->date(), instantAt(100));
}

TEST_F(MemoryScreens, OpenALinkThatNobodyDecidesOn) {
  const auto form = presentForm();
  addLink(*form, "https://example.com/rules");
  EXPECT_TRUE(screen().tapLink("text", 9));
  EXPECT_TRUE(screen().tapLink("text", 13));
  EXPECT_FALSE(screen().tapLink("text", 8));
  EXPECT_FALSE(screen().tapLink("text", 14));
  EXPECT_THAT(platform.application().opened,
              ElementsAre("https://example.com/rules", "https://example.com/rules"));
}

TEST_F(MemoryScreens, LeaveALinkToTheDelegate) {
  const auto form = presentForm();
  addLink(*form, "https://example.com/rules");
  form->text.lock()->setDelegate(form.get());
  EXPECT_TRUE(screen().tapLink("text", 9));
  form->systemMayAct = false;
  EXPECT_TRUE(screen().tapLink("text", 9));
  EXPECT_THAT(form->events, ElementsAre("link https://example.com/rules 9 5",
                                        "link https://example.com/rules 9 5"));
  EXPECT_THAT(platform.application().opened, ElementsAre("https://example.com/rules"));
}

TEST_F(MemoryScreens, OpenNothingForALinkThatIsNoURL) {
  const auto form = presentForm();
  for (const char* value : {"", "no URL", "//example.com"}) {
    addLink(*form, value);
    EXPECT_TRUE(screen().tapLink("text", 9)) << value;
  }
  EXPECT_THAT(platform.application().opened, IsEmpty());
}

TEST_F(MemoryScreens, HaveNoLinksToChooseWhereTheTextIsEditableOrNotSelectable) {
  layoutOf("text").isEditable = true;
  addLink(*presentForm(), "https://example.com");
  EXPECT_FALSE(screen().tapLink("text", 9));
  layoutOf("text").isEditable = false;
  layoutOf("text").isSelectable = false;
  addLink(*presentForm(), "https://example.com");
  EXPECT_FALSE(screen().tapLink("text", 9));
}

TEST_F(MemoryScreens, AddLinksToThoseOfATextView) {
  const auto form = presentForm();
  const auto text = form->text.lock();
  text->addLinks({{"https://example.com", {0, 4}}}, {.red = 1});
  text->addLinks({{"https://example.org", {9, 5}}}, {.blue = 1});
  const auto& view = screen().view<MemoryTextView>("text");
  EXPECT_THAT(view.links(), ElementsAre(TextLink{"https://example.com", {0, 4}},
                                        TextLink{"https://example.org", {9, 5}}));
  EXPECT_EQ(view.colorAt(0), (Color{.blue = 1}));
}

TEST_F(MemoryScreens, StopWhereAViewOrAnActionIsMissing) {
  layoutOf("button").action = "onNothing:";
  const auto form = presentForm();
  EXPECT_DEATH(screen().tap("button"), "screen1 has no action onNothing:");
  EXPECT_DEATH(screen().tap("picker"), "screen1 has no such view: picker");
  EXPECT_DEATH(screen().pick("nothing", {}), "screen1 has no such view: nothing");
}

TEST_F(MemoryScreens, ListTheRightNamesAndFailAsTheHostWants) {
  platform.viewControllers().onWrongName = [](const std::string& problem) {
    throw std::runtime_error(problem);
  };
  const auto form = presentForm();
  try {
    screen().tap("buton");
    FAIL() << "a wrong name passed";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(),
                 "screen1 has no such view: buton; it has: button (button) picker (date picker) "
                 "text (text view)");
  }
  EXPECT_TRUE(screen().tap("button"));
  EXPECT_THAT(form->events, ElementsAre("button"));
}

TEST_F(MemoryScreens, StopWhereTheLayoutIsMissing) {
  platform.mainBundle().layouts.clear();
  EXPECT_DEATH(presentForm(), "screen1: the bundle has no layout \"Form\"");
}

TEST_F(MemoryScreens, AreRecordedInTheOrderInWhichTheyWereMade) {
  EXPECT_EQ(platform.viewControllers().lastScreen(), nullptr);
  auto first = makeForm();
  EXPECT_EQ(screen().name(), "screen1");
  auto second = makeForm();
  EXPECT_EQ(screen().name(), "screen2");
  second.reset();
  EXPECT_EQ(screen().name(), "screen1");
}

}  // namespace
}  // namespace qv_commons::memory
