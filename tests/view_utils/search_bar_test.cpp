#include "qv_commons/view_utils/search_bar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/platform/memory/memory_search_bar.h"

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;

class SearchBarTest : public testing::Test {
 protected:
  void setVersion(OperatingSystemVersion version) { platform.device().versionNumber = version; }

  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
  memory::MemorySearchBar bar{platform.record(), "bar"};
};

TEST_F(SearchBarTest, GivesThePublishedFieldFromVersion13On) {
  bar.values.clear();  // no key would help
  for (const OperatingSystemVersion version :
       {OperatingSystemVersion{13, 0, 0}, {13, 0, 1}, {13, 4, 0}, {14, 0, 0}, {26, 0, 0}}) {
    setVersion(version);
    EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), &bar.textField());
  }
}

TEST_F(SearchBarTest, AsksTheVersionAndThenTheOneSource) {
  bar.qv_searchTextField_all_iOS_versions();
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("systemVersion.isAtLeast 13.0.0", "bar.searchTextField"));
  platform.record().clear();
  setVersion({12, 0, 0});
  bar.qv_searchTextField_all_iOS_versions();
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("systemVersion.isAtLeast 13.0.0", "bar.valueForKey \"_searchField\""));
}

TEST_F(SearchBarTest, GivesTheValueOfTheKeyBeforeVersion13) {
  memory::MemoryTextField other;
  bar.values["_searchField"] = &other;
  for (const OperatingSystemVersion version :
       {OperatingSystemVersion{11, 0, 0}, {12, 5, 7}, {12, 99, 99}}) {
    setVersion(version);
    EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), &other);
  }
}

TEST_F(SearchBarTest, GivesNullWhereTheKeyHoldsNothing) {
  setVersion({12, 4, 0});
  bar.values["_searchField"] = std::monostate();
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), nullptr);
}

TEST_F(SearchBarTest, GivesNullWhereTheKeyHoldsNoTextField) {
  setVersion({12, 4, 0});
  bar.values["_searchField"] = OtherObject();
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), nullptr);
}

TEST_F(SearchBarTest, AsksTheVersionAtEveryRead) {
  bar.values["_searchField"] = std::monostate();
  setVersion({12, 4, 0});
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), nullptr);
  setVersion({13, 0, 0});
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), &bar.textField());
  setVersion({12, 4, 0});
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions(), nullptr);
}

TEST_F(SearchBarTest, HandsOutTheFieldItself) {
  bar.qv_searchTextField_all_iOS_versions()->setText("notes");
  EXPECT_EQ(bar.textField().text(), "notes");
}

TEST_F(SearchBarTest, AllocatesNothing) {
  platform.record().setPaused(true);
  test::AllocationCounter counter;
  bar.qv_searchTextField_all_iOS_versions();
  setVersion({12, 4, 0});
  bar.qv_searchTextField_all_iOS_versions();
  EXPECT_EQ(counter.calls(), 0);
}

using SearchBarDeathTest = SearchBarTest;

TEST_F(SearchBarDeathTest, LetsTheErrorOfAnUnknownKeyPass) {
  setVersion({12, 4, 0});
  bar.values.clear();
  EXPECT_DEATH(bar.qv_searchTextField_all_iOS_versions(),
               "QV_Commons fatal error: MemorySearchBar: bar has no value for the key "
               "\"_searchField\"\n");
}

}  // namespace
}  // namespace qv_commons
