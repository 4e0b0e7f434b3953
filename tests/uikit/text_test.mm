#import "qv_commons/platform/uikit/text.h"

#include <gtest/gtest.h>

#import "tests/uikit/expect.h"
#import "tests/uikit/units_string.h"

using qv_commons::uikit::toNSArray;
using qv_commons::uikit::toNSString;
using qv_commons::uikit::toOptionalString;
using qv_commons::uikit::toString;
using qv_commons::uikit::toStrings;

namespace {

TEST(TextConversion, KeepsEveryCharacterThatBothSidesHave) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x91\xA9\xE2\x80\x8D\xF0\x9F\x9A\x80";
  NSString* converted = toNSString(text);
  EXPECT_OBJECT(converted, fromUnits(u"a\u00E9\u20AC\U0001F469\u200D\U0001F680"));
  EXPECT_EQ(converted.length, 8U);
  EXPECT_EQ(toString(converted), text);
}

TEST(TextConversion, KeepsTheEndsOfEachLengthOfUtf8) {
  const std::string text =
      "\x01\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
  EXPECT_OBJECT(toNSString(text),
                fromUnits(u"\u0001\u007F\u0080\u07FF\u0800\uFFFD\U00010000\U0010FFFF"));
  EXPECT_EQ(toString(toNSString(text)), text);
}

TEST(TextConversion, TakesNulForACharacterLikeOthers) {
  const std::string text("a\0b\0", 4);
  EXPECT_EQ(toNSString(text).length, 4U);
  EXPECT_EQ([toNSString(text) characterAtIndex:1], 0);
  EXPECT_EQ(toString(toNSString(text)), text);
}

TEST(TextConversion, ReplacesHalvesOfSurrogatePairs) {
  EXPECT_EQ(toString(fromUnits({0xD83D})), "\xEF\xBF\xBD");
  EXPECT_EQ(toString(fromUnits({0xDE80})), "\xEF\xBF\xBD");
  EXPECT_EQ(toString(fromUnits({'a', 0xDE80, 0xD83D, 'z'})), "a\xEF\xBF\xBD\xEF\xBF\xBDz");
  EXPECT_EQ(toString(fromUnits({0xD83D, 0xD83D, 0xDE80})), "\xEF\xBF\xBD\xF0\x9F\x9A\x80");
}

TEST(TextConversion, KnowsTheEndsOfBothHalvesOfSurrogatePairs) {
  EXPECT_EQ(toString(fromUnits({0xD800, 0xDC00})), "\xF0\x90\x80\x80");
  EXPECT_EQ(toString(fromUnits({0xDBFF, 0xDFFF})), "\xF4\x8F\xBF\xBF");
  EXPECT_EQ(toString(fromUnits({0xD7FF, 0xDC00})), "\xED\x9F\xBF\xEF\xBF\xBD");
  EXPECT_EQ(toString(fromUnits({0xD800, 0xE000})), "\xEF\xBF\xBD\xEE\x80\x80");
  EXPECT_EQ(toString(fromUnits({0xD800, 0xDBFF})), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(toString(fromUnits({0xDC00, 0xDFFF})), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(TextConversion, ReplacesBytesThatAreNoUtf8) {
  EXPECT_OBJECT(toNSString("caf\xE9"), fromUnits(u"caf\uFFFD"));
  EXPECT_OBJECT(toNSString("\xC3\xA9\xC3"), fromUnits(u"\u00E9\uFFFD"));
  EXPECT_OBJECT(toNSString("\xED\xA0\x80!"), fromUnits(u"\uFFFD\uFFFD\uFFFD!"));
}

TEST(TextConversion, TellsNilFromEmpty) {
  EXPECT_OBJECT(toNSString(""), @"");
  EXPECT_EQ(toOptionalString(@""), std::optional<std::string>(""));
  EXPECT_EQ(toOptionalString(nil), std::nullopt);
  EXPECT_EQ(toString(nil), "");
}

TEST(TextConversion, ConvertsListsInOrder) {
  EXPECT_EQ(toStrings(@[ @"b", @"", @"a" ]), (std::vector<std::string>{"b", "", "a"}));
  EXPECT_EQ(toStrings(nil), std::vector<std::string>());
  EXPECT_OBJECT(toNSArray({"b", "", "a"}), (@[ @"b", @"", @"a" ]));
  EXPECT_OBJECT(toNSArray({}), @[]);
}

}  // namespace
