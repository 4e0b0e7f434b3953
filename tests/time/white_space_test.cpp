#include "qv_commons/time/white_space.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace qv_commons {
namespace {

std::string encoded(unsigned point) {
  const auto byte = [](unsigned value) { return static_cast<char>(value); };
  if (point < 0x80) return {byte(point)};
  if (point < 0x800) return {byte(0xc0 | point >> 6), byte(0x80 | (point & 0x3f))};
  if (point < 0x10000) {
    return {byte(0xe0 | point >> 12), byte(0x80 | (point >> 6 & 0x3f)),
            byte(0x80 | (point & 0x3f))};
  }
  return {byte(0xf0 | point >> 18), byte(0x80 | (point >> 12 & 0x3f)),
          byte(0x80 | (point >> 6 & 0x3f)), byte(0x80 | (point & 0x3f))};
}

TEST(WhiteSpace, IsExactlyTheseCharactersOfUnicode) {
  const std::vector<unsigned> expected = {0x09,   0x0a,   0x0b,   0x0c,   0x0d,   0x20,   0x85,
                                          0xa0,   0x1680, 0x2000, 0x2001, 0x2002, 0x2003, 0x2004,
                                          0x2005, 0x2006, 0x2007, 0x2008, 0x2009, 0x200a, 0x2028,
                                          0x2029, 0x202f, 0x205f, 0x3000};
  std::vector<unsigned> atStart;
  std::vector<unsigned> atEnd;
  for (unsigned point = 0; point <= 0x10ffff; ++point) {
    if (trimmed(encoded(point) + "1:30") == "1:30") atStart.push_back(point);
    if (trimmed("1:30" + encoded(point)) == "1:30") atEnd.push_back(point);
  }
  EXPECT_EQ(atStart, expected);
  EXPECT_EQ(atEnd, expected);
}

TEST(WhiteSpace, IsRemovedFromBothEndsAndKeptInside) {
  EXPECT_EQ(trimmed(" \u2003\t1 : 30\u3000\n "), "1 : 30");
  EXPECT_EQ(trimmed("1\u00a030"), "1\u00a030");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed(" \u2028\u0085 "), "");
}

TEST(WhiteSpace, LeavesBytesThatAreNotUTF8) {
  EXPECT_EQ(trimmed("\x85"), "\x85");
  EXPECT_EQ(trimmed("\x80\x85 "), "\x80\x85");
  EXPECT_EQ(trimmed(" \xe2\x80"), "\xe2\x80");
  EXPECT_EQ(trimmed("\xa0 1"), "\xa0 1");
  EXPECT_EQ(trimmed("\xc2"), "\xc2");
}

}  // namespace
}  // namespace qv_commons
