#include "qv_commons/age_gate/age_gate_color_theme.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <type_traits>

#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;

const Color kWhite = {1, 1, 1, 1};
const Color kBlack = {0, 0, 0, 1};

void expectLight(const QV_AgeGateColorTheme& theme) {
  EXPECT_EQ(theme.buttonBGColor, kBlack);
  EXPECT_EQ(theme.buttonTextColor, kWhite);
  EXPECT_EQ(theme.backgroundColor, kWhite);
  EXPECT_EQ(theme.textColor, (Color{0.29, 0.29, 0.29, 1}));
  EXPECT_EQ(theme.policiesTextColor, (Color{0.514, 0.514, 0.514, 1}));
}

void expectDark(const QV_AgeGateColorTheme& theme) {
  EXPECT_EQ(theme.buttonBGColor, kWhite);
  EXPECT_EQ(theme.buttonTextColor, kBlack);
  EXPECT_EQ(theme.backgroundColor, (Color{0.118, 0.118, 0.118, 1}));
  EXPECT_EQ(theme.textColor, kWhite);
  EXPECT_EQ(theme.policiesTextColor, (Color{0.541, 0.541, 0.541, 1}));
}

TEST(ColorTheme, TakesTheFiveColoursInTheOrderOfItsLabels) {
  const QV_AgeGateColorTheme theme({0.1, 0, 0}, {0.2, 0, 0}, {0.3, 0, 0}, {0.4, 0, 0}, {0.5, 0, 0});
  EXPECT_EQ(theme.backgroundColor, (Color{0.1, 0, 0, 1}));
  EXPECT_EQ(theme.buttonBGColor, (Color{0.2, 0, 0, 1}));
  EXPECT_EQ(theme.buttonTextColor, (Color{0.3, 0, 0, 1}));
  EXPECT_EQ(theme.textColor, (Color{0.4, 0, 0, 1}));
  EXPECT_EQ(theme.policiesTextColor, (Color{0.5, 0, 0, 1}));
}

TEST(ColorTheme, DeclaresTheButtonsBackgroundFirst) {
  const QV_AgeGateColorTheme theme(kWhite, kWhite, kWhite, kWhite, kWhite);
  EXPECT_LT(&theme.buttonBGColor, &theme.buttonTextColor);
  EXPECT_LT(&theme.buttonTextColor, &theme.backgroundColor);
  EXPECT_LT(&theme.backgroundColor, &theme.textColor);
  EXPECT_LT(&theme.textColor, &theme.policiesTextColor);
}

TEST(ColorTheme, IsMadeOfFiveColoursOnlyAndIsNeverCopied) {
  EXPECT_FALSE(std::is_default_constructible_v<QV_AgeGateColorTheme>);
  EXPECT_FALSE(std::is_copy_constructible_v<QV_AgeGateColorTheme>);
}

TEST(ColorTheme, CanBeChangedAfterwards) {
  QV_AgeGateColorTheme theme(kWhite, kWhite, kWhite, kWhite, kWhite);
  theme.buttonBGColor = kBlack;
  EXPECT_EQ(theme.buttonBGColor, kBlack);
  EXPECT_EQ(theme.backgroundColor, kWhite);
}

TEST(DefaultThemeFor, IsDarkOnlyForADarkStyleOnASystemThatHasStyles) {
  expectLight(*defaultThemeFor(false, false));
  expectLight(*defaultThemeFor(false, true));
  expectLight(*defaultThemeFor(true, false));
  expectDark(*defaultThemeFor(true, true));
}

class DefaultTheme : public testing::Test {
 protected:
  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
};

TEST_F(DefaultTheme, IsDarkOnADarkSystem) {
  platform.device().style = UserInterfaceStyle::dark;
  expectDark(*QV_AgeGateColorTheme::defaultTheme());
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("device.isSystemVersionAtLeast 13", "device.userInterfaceStyle"));
}

TEST_F(DefaultTheme, IsDarkFromVersionThirteenOn) {
  platform.device().style = UserInterfaceStyle::dark;
  platform.device().version = "13.0";
  expectDark(*QV_AgeGateColorTheme::defaultTheme());
}

TEST_F(DefaultTheme, IsLightOnALightSystem) {
  platform.device().style = UserInterfaceStyle::light;
  expectLight(*QV_AgeGateColorTheme::defaultTheme());
}

TEST_F(DefaultTheme, IsLightWhereTheSystemDoesNotSay) {
  platform.device().style = UserInterfaceStyle::unspecified;
  expectLight(*QV_AgeGateColorTheme::defaultTheme());
}

TEST_F(DefaultTheme, IsLightBeforeVersionThirteenAndDoesNotAskForTheStyle) {
  platform.device().style = UserInterfaceStyle::dark;
  platform.device().version = "12.4.9";
  expectLight(*QV_AgeGateColorTheme::defaultTheme());
  EXPECT_THAT(platform.record().lines(), ElementsAre("device.isSystemVersionAtLeast 13"));
}

TEST_F(DefaultTheme, IsANewObjectAtEachCall) {
  const auto first = QV_AgeGateColorTheme::defaultTheme();
  const auto second = QV_AgeGateColorTheme::defaultTheme();
  EXPECT_NE(first, second);
  first->textColor = kBlack;
  EXPECT_EQ(second->textColor, (Color{0.29, 0.29, 0.29, 1}));
}

TEST_F(DefaultTheme, DoesNotFollowTheSystemAfterwards) {
  const auto theme = QV_AgeGateColorTheme::defaultTheme();
  platform.device().style = UserInterfaceStyle::dark;
  expectLight(*theme);
}

}  // namespace
}  // namespace qv_commons
