#include "qv_commons/view_utils/search_bar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;

struct TextField {};
struct OtherView {};

// A search bar that records what it is asked. Its private value may be of any class.
class Bar {
 public:
  using Value = std::variant<std::monostate, TextField*, OtherView*>;

  Bar(memory::Record& record, TextField& published) : record_(record), published_(published) {}

  Value privateValue;

  TextField* searchTextField() const {
    record_.add("bar.searchTextField");
    return &published_;
  }
  Value valueForKey(std::string_view key) const {
    record_.add("bar.valueForKey ", key);
    return privateValue;
  }
  static TextField* toTextField(const Value& value) {
    TextField* const* field = std::get_if<TextField*>(&value);
    return field == nullptr ? nullptr : *field;
  }

 private:
  memory::Record& record_;
  TextField& published_;
};

class SearchBar : public testing::Test {
 protected:
  TextField* fieldIn(const char* version) {
    platform.device().version = version;
    return qv_searchTextField_all_iOS_versions(bar);
  }

  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
  TextField published;
  TextField inner;
  OtherView other;
  Bar bar{platform.record(), published};
};

TEST_F(SearchBar, GivesThePublishedFieldFromVersion13On) {
  bar.privateValue = &inner;
  for (const char* version : {"13.0", "13.0.1", "13.4", "14.0", "26.0", "100"}) {
    EXPECT_EQ(fieldIn(version), &published);
  }
}

TEST_F(SearchBar, GivesTheValueOfTheKeyBeforeVersion13) {
  bar.privateValue = &inner;
  for (const char* version : {"9.3", "11.0", "12.5.7", "12.99.99"}) {
    EXPECT_EQ(fieldIn(version), &inner);
  }
}

TEST_F(SearchBar, IsAskedForOneOfTheTwoAfterTheVersion) {
  fieldIn("13.0");
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("device.isSystemVersionAtLeast 13", "bar.searchTextField"));
  platform.record().clear();
  fieldIn("12.0");
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("device.isSystemVersionAtLeast 13", "bar.valueForKey _searchField"));
}

TEST_F(SearchBar, GivesNullIfTheKeyHasNoValue) {
  EXPECT_EQ(fieldIn("12.4"), nullptr);
}

TEST_F(SearchBar, GivesNullIfTheValueIsNotATextField) {
  bar.privateValue = &other;
  EXPECT_EQ(fieldIn("12.4"), nullptr);
}

TEST_F(SearchBar, IsReadAnewEachTime) {
  EXPECT_EQ(fieldIn("12.4"), nullptr);
  EXPECT_EQ(fieldIn("13.0"), &published);
  EXPECT_EQ(fieldIn("12.4"), nullptr);
}

TEST_F(SearchBar, IsReadWithoutAllocation) {
  bar.privateValue = &inner;
  platform.record().setPaused(true);
  test::AllocationCounter counter;
  fieldIn("13.0");
  fieldIn("12.4");
  EXPECT_EQ(counter.calls(), 0);
}

}  // namespace
}  // namespace qv_commons
