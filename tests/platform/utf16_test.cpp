#include "qv_commons/platform/memory/utf16.h"

#include <gtest/gtest.h>

namespace qv_commons::memory {
namespace {

TEST(Utf16, CountsOneUnitUpToU_FFFFAndTwoAbove) {
  EXPECT_EQ(utf16Of(""), u"");
  EXPECT_EQ(utf16Of("a"), u"a");
  EXPECT_EQ(utf16Of("é"), u"\u00E9");
  EXPECT_EQ(utf16Of("e\u0301"), u"e\u0301");
  EXPECT_EQ(utf16Of("’"), u"\u2019");
  EXPECT_EQ(utf16Of("👍"), u"\xD83D\xDC4D");
  EXPECT_EQ(utf16Of("\U0010FFFF"), u"\xDBFF\xDFFF");
}

TEST(Utf16, ComesBackAsItWas) {
  const std::string_view text = "a \x7F \u0080 é e\u0301 \u07FF \u0800 \uFFFD 👍 \U0010FFFF";
  EXPECT_EQ(utf8Of(utf16Of(text)), text);
}

TEST(Utf16, ShowsHalfAPairAsAReplacement) {
  EXPECT_EQ(utf8Of(u"a\xD83D"), "a\uFFFD");
  EXPECT_EQ(utf8Of(u"\xDC4D"
                   u"a"),
            "\uFFFDa");
  EXPECT_EQ(utf8Of(u"\xD83D\xD83D\xDC4D"), "\uFFFD👍");
}

TEST(Utf16, KnowsTheEndsOfBothHalves) {
  EXPECT_EQ(utf16Of("\U00010000"), u"\xD800\xDC00");
  EXPECT_EQ(utf8Of(u"\xD800\xDC00"), "\U00010000");
  EXPECT_EQ(utf8Of(u"\xDBFF\xDFFF"), "\U0010FFFF");
  EXPECT_EQ(utf8Of(u"\xD7FF\xDC00"), "\xED\x9F\xBF\uFFFD");
  EXPECT_EQ(utf8Of(u"\xD800\xE000"), "\uFFFD\uE000");
  EXPECT_EQ(utf8Of(u"\xD800\xDBFF"), "\uFFFD\uFFFD");
  EXPECT_EQ(utf8Of(u"\xDC00\xDFFF"), "\uFFFD\uFFFD");
}

TEST(Utf16, ReadsNothingBehindACharacterThatBreaksOff) {
  EXPECT_EQ(utf16Of(std::string_view("a\xC3\xA9", 2)).size(), 2U);
  EXPECT_EQ(utf16Of(std::string_view("a\xE2\x82\xAC", 3)).size(), 2U);
}

}  // namespace
}  // namespace qv_commons::memory
