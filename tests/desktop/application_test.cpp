// Links on their way to the desktop.
#include "qv_commons/platform/application.h"

#include <gmock/gmock.h>

#include "qv_commons/support/url.h"

#include "tests/desktop/desktop_driver.h"
#include "tests/desktop/url_catcher.h"

namespace qv_commons::desktop {
namespace {

TEST(Application, OpensALinkThatQtKeepsByQt) {
  const UrlCatcher browser("https");
  const DesktopPlatform desktop({});
  desktop.platform().application.openURL(*URL::parse("https://example.com/a%2Fb?c=%20d"));
  EXPECT_THAT(browser.urls(), testing::ElementsAre("https://example.com/a%2Fb?c=%20d"));
}

// Qt would write "A" and "%3F".
TEST(Application, OpensEveryOtherLinkToTheByte) {
  const TestFolder folder;
  folder.writeProgram("xdg-open", "echo \"$@\" >\"" + folder.path("opened") + "\"");
  const QByteArray before = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(folder.path()) + ":" + before);
  const UrlCatcher browser("https");
  const DesktopPlatform desktop({});
  desktop.platform().application.openURL(*URL::parse("https://example.com/%41%3f?x=%7e"));
  EXPECT_TRUE(waitUntil([&] { return !readFile(folder.path("opened")).empty(); }));
  EXPECT_EQ(readFile(folder.path("opened")), "https://example.com/%41%3f?x=%7e\n");
  EXPECT_THAT(browser.urls(), testing::IsEmpty());
  qputenv("PATH", before);
}

}  // namespace
}  // namespace qv_commons::desktop
