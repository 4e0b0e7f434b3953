#include "qv_commons/app_info/utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace qv_commons {
namespace {

using namespace std::string_view_literals;

TEST(Utf8, AcceptsTheFirstAndLastCharacterOfEachLength) {
  EXPECT_TRUE(isUtf8(""));
  EXPECT_TRUE(isUtf8("\0"sv));
  EXPECT_TRUE(isUtf8("\x7F"));
  EXPECT_TRUE(isUtf8("\xC2\x80"));
  EXPECT_TRUE(isUtf8("\xDF\xBF"));
  EXPECT_TRUE(isUtf8("\xE0\xA0\x80"));
  EXPECT_TRUE(isUtf8("\xED\x9F\xBF"));  // U+D7FF, the last before the surrogates
  EXPECT_TRUE(isUtf8("\xEE\x80\x80"));  // U+E000, the first after them
  EXPECT_TRUE(isUtf8("\xEF\xBF\xBF"));
  EXPECT_TRUE(isUtf8("\xF0\x90\x80\x80"));
  EXPECT_TRUE(isUtf8("\xF4\x8F\xBF\xBF"));  // U+10FFFF
}

TEST(Utf8, AcceptsAByteOrderMark) {
  EXPECT_TRUE(isUtf8("\xEF\xBB\xBF{}"));
}

TEST(Utf8, RefusesOverlongForms) {
  EXPECT_FALSE(isUtf8("\xC0\x80"));
  EXPECT_FALSE(isUtf8("\xC1\xBF"));
  EXPECT_FALSE(isUtf8("\xE0\x80\x80"));
  EXPECT_FALSE(isUtf8("\xE0\x9F\xBF"));
  EXPECT_FALSE(isUtf8("\xF0\x80\x80\x80"));
  EXPECT_FALSE(isUtf8("\xF0\x8F\xBF\xBF"));
}

TEST(Utf8, RefusesSurrogates) {
  EXPECT_FALSE(isUtf8("\xED\xA0\x80"));
  EXPECT_FALSE(isUtf8("\xED\xBF\xBF"));
  EXPECT_FALSE(isUtf8("\xED\xA0\xBD\xED\xB1\x8D"));  // a pair
}

TEST(Utf8, RefusesWhatLiesAboveTheLastCharacter) {
  EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80"));
  EXPECT_FALSE(isUtf8("\xF5\x80\x80\x80"));
  EXPECT_FALSE(isUtf8("\xFE"));
  EXPECT_FALSE(isUtf8("\xFF"));
}

TEST(Utf8, RefusesWhatIsCutShort) {
  EXPECT_FALSE(isUtf8("\xC3"));
  EXPECT_FALSE(isUtf8("\xE2\x82"));
  EXPECT_FALSE(isUtf8("\xF0\x9F\x91"));
  EXPECT_FALSE(isUtf8("\xC3 "));
  EXPECT_FALSE(isUtf8("\xE2\x82 "));
  EXPECT_FALSE(isUtf8("\xF0\x9F\x91 "));
  EXPECT_FALSE(isUtf8("\xE2\x82\xC3"));
}

TEST(Utf8, RefusesAContinuationByItself) {
  EXPECT_FALSE(isUtf8("\x80"));
  EXPECT_FALSE(isUtf8("a\xBF"));
  EXPECT_FALSE(isUtf8("\xC3\xA9\xA9"));
}

TEST(Utf8, FindsABadByteWhereverItIs) {
  for (std::size_t at = 0; at < 40; ++at) {
    std::string text(40, 'x');
    EXPECT_TRUE(isUtf8(text));
    text[at] = '\xE9';
    EXPECT_FALSE(isUtf8(text)) << at;
    text.insert(at + 1, "\x80\x80");
    EXPECT_TRUE(isUtf8(text)) << at;
  }
}

}  // namespace
}  // namespace qv_commons
