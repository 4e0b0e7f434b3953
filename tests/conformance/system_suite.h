// Conformance of the small capabilities: Console, Device, Languages, Screen, SystemVersion, Clock,
// Application.
#pragma once

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class ConsoleConformance : public Suite {};

TEST_P(ConsoleConformance, PrintsEachLineAsItStands) {
  const Platform& current = platform();
  EXPECT_THAT(adapter().printedBy([&] {
    current.console.print("error converting receipt to Data: 100 %s");
    current.console.print("");
    current.console.print("Grüße");
  }),
              testing::ElementsAre("error converting receipt to Data: 100 %s", "", "Grüße"));
}

class DeviceConformance : public Suite {};

TEST_P(DeviceConformance, HasAModelAndASystemVersion) {
  EXPECT_NE(platform().device.localizedModel(), "");
  EXPECT_NE(platform().device.systemVersion(), "");
}

class LanguagesConformance : public Suite {};

// As "en-GB": neither "en_GB.UTF-8" nor "C".
TEST_P(LanguagesConformance, AreLanguageTags) {
  for (const std::string& language : platform().languages.preferredLanguages()) {
    EXPECT_THAT(language, testing::MatchesRegex("[a-z][a-z]+(-[A-Za-z0-9]+)*"));
  }
}

class ScreenConformance : public Suite {};

TEST_P(ScreenConformance, HasASize) {
  EXPECT_GT(platform().screen.bounds().width, 0);
  EXPECT_GT(platform().screen.bounds().height, 0);
}

TEST_P(ScreenConformance, IsLightOrDark) {
  adapter().useUserInterfaceStyle(UserInterfaceStyle::dark);
  EXPECT_EQ(platform().screen.userInterfaceStyle(), UserInterfaceStyle::dark);
}

class SystemVersionConformance : public Suite {};

TEST_P(SystemVersionConformance, ComparesByMajorThenMinorThenPatch) {
  adapter().useSystemVersion({13, 1, 2});
  const SystemVersion& version = platform().systemVersion;
  EXPECT_TRUE(version.isOperatingSystemAtLeastVersion({13, 1, 2}));
  EXPECT_TRUE(version.isOperatingSystemAtLeastVersion({13, 0, 0}));
  EXPECT_TRUE(version.isOperatingSystemAtLeastVersion({12, 4, 9}));
  EXPECT_FALSE(version.isOperatingSystemAtLeastVersion({13, 1, 3}));
  EXPECT_FALSE(version.isOperatingSystemAtLeastVersion({13, 2, 0}));
  EXPECT_FALSE(version.isOperatingSystemAtLeastVersion({14, 0, 0}));
}

class ClockConformance : public Suite {};

// Between the years 2020 and 2100: seconds, and neither milliseconds nor another epoch.
TEST_P(ClockConformance, CountsSecondsSince1970) {
  EXPECT_GT(platform().clock.timeIntervalSince1970(), 1577836800.0);
  EXPECT_LT(platform().clock.timeIntervalSince1970(), 4102444800.0);
}

class ApplicationConformance : public Suite {};

TEST_P(ApplicationConformance, HandsALinkToTheSystem) {
  const Platform& current = platform();
  EXPECT_THAT(
      adapter().openedBy([&] { current.application.openURL("https://example.com/privacy/"); }),
      testing::ElementsAre("https://example.com/privacy/"));
}

}  // namespace qv_commons::conformance
