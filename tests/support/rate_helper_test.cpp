#include "qv_commons/support/rate_helper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RateHelper : public testing::Test {
 protected:
  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
};

TEST_F(RateHelper, OpensTheReviewPageAndAsksNothingElse) {
  QV_RateHelper::openWriteReviewOnAppStore("id123456789");
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("application.openURL "
                          "itms-apps://apps.apple.com/app/id123456789?mt=8&action=write-review"));
}

TEST_F(RateHelper, AddsNoPrefix) {
  QV_RateHelper::openWriteReviewOnAppStore("123456789");
  EXPECT_THAT(platform.application().opened,
              ElementsAre("itms-apps://apps.apple.com/app/123456789?mt=8&action=write-review"));
}

TEST_F(RateHelper, OpensTheLinkOfAnEmptyIdentifier) {
  QV_RateHelper::openWriteReviewOnAppStore("");
  EXPECT_THAT(platform.application().opened,
              ElementsAre("itms-apps://apps.apple.com/app/?mt=8&action=write-review"));
}

TEST_F(RateHelper, EncodesNothing) {
  QV_RateHelper::openWriteReviewOnAppStore("a/../b%20c#d?e");
  EXPECT_THAT(
      platform.application().opened,
      ElementsAre("itms-apps://apps.apple.com/app/a/../b%20c#d?e?mt=8&action=write-review"));
}

TEST_F(RateHelper, DoesNothingIfTheLinkIsNotAValidURL) {
  for (const std::string appId : {" id1", "id1\n", "id 1", "id%1", "id|1", "\xc3\xa4", "[id1]"}) {
    QV_RateHelper::openWriteReviewOnAppStore(appId);
  }
  QV_RateHelper::openWriteReviewOnAppStore(
      std::string("id\0"
                  "1",
                  4));
  EXPECT_THAT(platform.record().lines(), IsEmpty());
}

TEST_F(RateHelper, AllocatesTheLinkAlone) {
  platform.record().setPaused(true);
  platform.application().opened.reserve(1);
  const std::string appId = "id123456789";
  test::AllocationCounter counter;
  QV_RateHelper::openWriteReviewOnAppStore(appId);
  EXPECT_EQ(counter.calls(), 2);  // the link, and the copy that the memory adapter keeps
}

}  // namespace
}  // namespace qv_commons
