#include "qv_commons/app_info/joined_text.h"

#include <gtest/gtest.h>

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using std::string_view_literals::operator""sv;

TEST(JoinedText, HasThePiecesInTheirOrder) {
  EXPECT_EQ(joinedText({"1.0", "(", "17", ")"}), "1.0(17)");
  EXPECT_EQ(joinedText({"", "a", "", "b", ""}), "ab");
  EXPECT_EQ(joinedText({"a\0b"sv, "\xFF"}), "a\0b\xFF"sv);
  EXPECT_EQ(joinedText({}), "");
}

TEST(JoinedText, AllocatesTheResultAlone) {
  const std::string_view piece = "longer than a short text";
  test::AllocationCounter counter;
  const std::string text = joinedText({piece, piece, piece});
  EXPECT_EQ(counter.calls(), 1);
  EXPECT_EQ(text.size(), 3 * piece.size());
}

}  // namespace
}  // namespace qv_commons
