#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>
#include <string_view>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/desktop_search_bar.h"

namespace qv_commons::desktop {
namespace {

class SearchBarWidget : public testing::TestWithParam<int> {
 protected:
  DesktopPlatform desktop{{.systemVersion = GetParam()}};
  ScopedPlatform scope{desktop.platform()};
  DesktopSearchBar bar{"Search notes"};
};

TEST_P(SearchBarWidget, GivesTheFieldThatTheUserTypesInto) {
  QLineEdit* field = qv_searchTextField_all_iOS_versions(bar);
  ASSERT_NE(field, nullptr);
  bar.show();
  bar.setFocus();
  for (const char key : std::string_view("birthday")) QTest::keyClick(bar.windowHandle(), key);
  EXPECT_EQ(field->text(), "birthday");
}

INSTANTIATE_TEST_SUITE_P(Versions, SearchBarWidget, testing::Values(12, 13, 17),
                         [](const auto& tested) {
                           return "Version" + std::to_string(tested.param);
                         });

TEST(SearchBarWidgetAlone, IsNamedForScreenReadersAndTallEnoughForAFinger) {
  const DesktopSearchBar bar("Search notes");
  EXPECT_EQ(bar.searchTextField()->accessibleName(), "Search notes");
  EXPECT_EQ(bar.searchTextField()->placeholderText(), "Search notes");
  EXPECT_GE(bar.minimumSizeHint().height(), 44);
}

TEST(SearchBarWidgetDeathTest, KnowsOneKeyAndNoOther) {
  const DesktopSearchBar bar("Search notes");
  EXPECT_DEATH(bar.valueForKey("_field"),
               "DesktopSearchBar: there is no value for the key \"_field\"");
}

}  // namespace
}  // namespace qv_commons::desktop
