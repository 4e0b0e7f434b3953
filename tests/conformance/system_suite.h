// Conformance of the small capabilities: Device, Clock, Application.
#pragma once

#include "qv_commons/platform/application.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/support/url.h"

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class ApplicationConformance : public Suite {};

TEST_P(ApplicationConformance, PrintsEachLineAsItStands) {
  const Platform& current = platform();
  EXPECT_THAT(adapter().printedBy([&] {
    current.application.print("error converting receipt to Data: 100 %s");
    current.application.print("");
    current.application.print("Grüße");
  }),
              testing::ElementsAre("error converting receipt to Data: 100 %s", "", "Grüße"));
}

class DeviceConformance : public Suite {};

TEST_P(DeviceConformance, HasAModelAndASystemVersion) {
  EXPECT_NE(platform().device.localizedModel(), "");
  EXPECT_NE(platform().device.systemVersion(), "");
}

// As "en-GB": neither "en_GB.UTF-8" nor "C".
TEST_P(DeviceConformance, ListsLanguageTags) {
  for (const std::string& language : platform().device.preferredLanguages()) {
    EXPECT_THAT(language, testing::MatchesRegex("[a-z][a-z]+(-[A-Za-z0-9]+)*"));
  }
}

TEST_P(DeviceConformance, HasAScreenSize) {
  EXPECT_GT(platform().device.screenBounds().width, 0);
  EXPECT_GT(platform().device.screenBounds().height, 0);
}

TEST_P(DeviceConformance, IsLightOrDark) {
  adapter().useUserInterfaceStyle(UserInterfaceStyle::dark);
  EXPECT_EQ(platform().device.userInterfaceStyle(), UserInterfaceStyle::dark);
}

TEST_P(DeviceConformance, IsOfItsMajorVersionOrALaterOne) {
  adapter().useSystemVersion(12);
  EXPECT_TRUE(platform().device.isSystemVersionAtLeast(11));
  EXPECT_TRUE(platform().device.isSystemVersionAtLeast(12));
  EXPECT_FALSE(platform().device.isSystemVersionAtLeast(13));
}

TEST_P(DeviceConformance, ComparesVersionsAsNumbers) {
  adapter().useSystemVersion(100);
  EXPECT_TRUE(platform().device.isSystemVersionAtLeast(13));
}

class ClockConformance : public Suite {};

// Between the years 2020 and 2100: seconds, and neither milliseconds nor another epoch.
TEST_P(ClockConformance, CountsSecondsSince1970) {
  EXPECT_GT(platform().clock.now(), instantAt(1577836800));
  EXPECT_LT(platform().clock.now(), instantAt(4102444800));
}

TEST_P(ApplicationConformance, HandsALinkToTheSystem) {
  const Platform& current = platform();
  EXPECT_THAT(adapter().openedBy([&] {
    current.application.openURL(*URL::parse("https://example.com/privacy/"));
  }),
              testing::ElementsAre("https://example.com/privacy/"));
}

}  // namespace qv_commons::conformance
