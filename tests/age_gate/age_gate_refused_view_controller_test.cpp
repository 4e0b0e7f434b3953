#include "qv_commons/age_gate/age_gate_refused_view_controller.h"

#include "tests/age_gate/age_gate_fixture.h"

namespace qv_commons {
namespace {

using memory::MemoryLabel;
using memory::MemoryTextView;
using testing::ElementsAre;
using testing::IsEmpty;

class RefusedScreen : public test::AgeGateFixture {
 protected:
  void startRefused() {
    setFlags(true, true);
    start();
  }

  memory::MemoryLayout& layout() {
    return platform.resourceBundle().layouts["QV_AgeGateRefusedViewController"];
  }

  std::string headerText() { return *screen()->view<MemoryLabel>("header").text(); }
};

TEST_F(RefusedScreen, HasItsDefaultsWhereOnlyItsLayoutMadeIt) {
  const auto alone = QV_AgeGateRefusedViewController::create(platform.platform());
  EXPECT_EQ(alone->privacyLink, "");
  EXPECT_EQ(alone->termsOfServiceLink, "");
  EXPECT_EQ(alone->colorTheme->textColor, (Color{0.29, 0.29, 0.29, 1}));
  EXPECT_FALSE(alone->contactUsHandler);
  EXPECT_TRUE(alone->bg.expired());
  EXPECT_TRUE(alone->contact.expired());
  EXPECT_TRUE(alone->tos.expired());
  EXPECT_TRUE(alone->header.expired());
}

TEST_F(RefusedScreen, TakesItsDefaultThemeWhenItIsMade) {
  const auto alone = QV_AgeGateRefusedViewController::create(platform.platform());
  platform.device().style = UserInterfaceStyle::dark;
  screen()->load();
  EXPECT_EQ(screen()->view<MemoryLabel>("header").textColor(), (Color{0.29, 0.29, 0.29, 1}));
}

TEST_F(RefusedScreen, NamesItsOutletsAsTheLayoutDoesAndHasNoActions) {
  const auto alone = QV_AgeGateRefusedViewController::create(platform.platform());
  std::vector<std::string> names;
  for (const Outlet& outlet : alone->outlets()) names.emplace_back(outlet.name);
  EXPECT_THAT(names, ElementsAre("bg", "contact", "tos", "header"));
  EXPECT_THAT(alone->actions(), IsEmpty());
}

TEST_F(RefusedScreen, NamesTheApp) {
  platform.mainBundle().info["CFBundleDisplayName"] = "Notes";
  startRefused();
  EXPECT_EQ(headerText(), "We’re sorry, Notes isn’t available to you");
}

TEST_F(RefusedScreen, LeavesTheNameOutWhereTheAppHasNone) {
  platform.mainBundle().info["CFBundleName"] = "Notes";
  startRefused();
  EXPECT_EQ(headerText(), "We’re sorry,  isn’t available to you");
}

TEST_F(RefusedScreen, NamesTheAppWhereverTheHeaderSaysSo) {
  platform.mainBundle().info["CFBundleDisplayName"] = "Notes";
  layout()["header"].text = "[APPNAME]: no [APPNAME] for now";
  startRefused();
  EXPECT_EQ(headerText(), "Notes: no Notes for now");
}

TEST_F(RefusedScreen, SetsAHeaderWithoutThePlaceholderUnchanged) {
  layout()["header"].text = "Not now, [AppName]";
  startRefused();
  EXPECT_EQ(lines().back(), "screen1.header.setText \"Not now, [AppName]\"");
}

TEST_F(RefusedScreen, CallsTheHandlerOnceForEachContactTap) {
  startRefused();
  EXPECT_TRUE(screen()->tapLink("contact", 38));
  EXPECT_TRUE(screen()->tapLink("contact", 59));
  EXPECT_THAT(contacted, ElementsAre(&screen()->controller(), &screen()->controller()));
  EXPECT_THAT(platform.application().opened, IsEmpty());
}

TEST_F(RefusedScreen, HasItsContactLinkExactlyWhereTheTextNamesIt) {
  startRefused();
  EXPECT_EQ(screen()->view<MemoryTextView>("contact").textIn({38, 22}), "contact us for support");
  EXPECT_FALSE(screen()->tapLink("contact", 37));
  EXPECT_FALSE(screen()->tapLink("contact", 60));
  EXPECT_THAT(contacted, IsEmpty());
}

TEST_F(RefusedScreen, DoesNothingOnAContactTapWithoutAHandler) {
  setFlags(true, true);
  QV_AgeGateHelper::startAgeGateProcess(home, 18, nullptr, nullptr, theme, "", "");
  forgetLines();
  EXPECT_TRUE(screen()->tapLink("contact", 38));
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RefusedScreen, DeclinesEveryLinkAndHandlesThoseWithMailtoInThem) {
  startRefused();
  auto& refusal = static_cast<QV_AgeGateRefusedViewController&>(screen()->controller());
  auto& contact = screen()->view<MemoryTextView>("contact");
  const auto answer = [&](std::string_view url) {
    return refusal.shouldInteractWithURL(contact, url, {0, 1});
  };
  EXPECT_FALSE(answer("https://example.com"));
  EXPECT_FALSE(answer(""));
  EXPECT_FALSE(answer("MAILTO:a@example.com"));
  EXPECT_THAT(contacted, IsEmpty());
  EXPECT_FALSE(answer("mailto"));
  EXPECT_FALSE(answer("https://example.com/mailto/x"));
  EXPECT_THAT(contacted, ElementsAre(&refusal, &refusal));
}

TEST_F(RefusedScreen, OpensItsPolicyLinksWithTheSystemEvenWithMailtoInThem) {
  setFlags(true, true);
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, nullptr, [&](ViewController& screen) { contacted.push_back(&screen); }, theme,
      "mailto:privacy@example.com", "https://example.com/terms");
  EXPECT_EQ(screen()->view<MemoryTextView>("tos").delegate(), nullptr);
  EXPECT_TRUE(screen()->tapLink("tos", 13));
  EXPECT_TRUE(screen()->tapLink("tos", 17));
  EXPECT_THAT(platform.application().opened,
              ElementsAre("mailto:privacy@example.com", "https://example.com/terms"));
  EXPECT_THAT(contacted, IsEmpty());
}

TEST_F(RefusedScreen, LetsTheHostPresentOverItFromItsHandler) {
  setFlags(true, true);
  const auto help = platform.makeViewController("help");
  QV_AgeGateHelper::startAgeGateProcess(
      home, 18, nullptr,
      [&](ViewController& refusal) { refusal.presentViewController(help, true, nullptr); }, theme,
      "", "");
  EXPECT_TRUE(screen()->tapLink("contact", 40));
  EXPECT_EQ(screen()->presentedViewController(), help.get());
  EXPECT_FALSE(screen()->tapLink("contact", 40));  // covered
  help->dismissViewController(true, nullptr);
  EXPECT_TRUE(screen()->isOnScreen());
  EXPECT_TRUE(screen()->tapLink("contact", 40));
}

TEST_F(RefusedScreen, CannotBeSwipedAway) {
  startRefused();
  EXPECT_FALSE(screen()->swipeAway());
  EXPECT_TRUE(screen()->isOnScreen());
}

}  // namespace
}  // namespace qv_commons
