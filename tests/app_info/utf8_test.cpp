#include "qv_commons/app_info/utf8.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

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

// The rows of the Unicode Standard's table 3-7: two bytes' bounds, and how many bytes follow them.
struct Row {
  unsigned char firstLowest, firstHighest;
  unsigned char secondLowest, secondHighest;
  int others;
};

constexpr Row kRows[] = {{0xC2, 0xDF, 0x80, 0xBF, 0}, {0xE0, 0xE0, 0xA0, 0xBF, 1},
                         {0xE1, 0xEC, 0x80, 0xBF, 1}, {0xED, 0xED, 0x80, 0x9F, 1},
                         {0xEE, 0xEF, 0x80, 0xBF, 1}, {0xF0, 0xF0, 0x90, 0xBF, 2},
                         {0xF1, 0xF3, 0x80, 0xBF, 2}, {0xF4, 0xF4, 0x80, 0x8F, 2}};

TEST(Utf8, KeepsToTheBoundsOfEachRowOfTheTable) {
  const auto text = [](int first, int second, int others, char other) {
    return std::string{static_cast<char>(first), static_cast<char>(second)} +
           std::string(static_cast<std::size_t>(others), other);
  };
  for (const Row& row : kRows) {
    for (const int first : {row.firstLowest, row.firstHighest}) {
      for (const char other : {'\x80', '\xBF'}) {
        EXPECT_TRUE(isUtf8(text(first, row.secondLowest, row.others, other))) << first;
        EXPECT_TRUE(isUtf8(text(first, row.secondHighest, row.others, other))) << first;
      }
      EXPECT_FALSE(isUtf8(text(first, row.secondLowest - 1, row.others, '\x80'))) << first;
      EXPECT_FALSE(isUtf8(text(first, row.secondHighest + 1, row.others, '\x80'))) << first;
      for (const char other : {'\x7F', '\xC0'}) {
        if (row.others == 0) break;
        EXPECT_FALSE(isUtf8(text(first, row.secondLowest, row.others, other))) << first;
        EXPECT_FALSE(isUtf8(text(first, row.secondLowest, row.others - 1, '\x80') + other));
      }
    }
  }
}

TEST(Utf8, RefusesEveryOtherLeadByte) {
  for (int lead = 0x80; lead <= 0xFF; ++lead) {
    if (lead >= 0xC2 && lead <= 0xF4) continue;
    for (std::size_t others = 0; others < 4; ++others) {
      EXPECT_FALSE(isUtf8(static_cast<char>(lead) + std::string(others, '\x80'))) << lead;
    }
  }
}

TEST(Utf8, FindsAContinuationAtTheStartOfAMachineWord) {
  for (const char byte : {'\x80', '\xBF', '\xFF'}) {
    for (std::size_t before = 0; before <= 16; before += 8) {
      EXPECT_FALSE(isUtf8(std::string(before, 'x') + byte + "xxxxxxx")) << before;
    }
  }
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

TEST(Utf8, RefusesCodePointsAboveTheLast) {
  EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80"));
  EXPECT_FALSE(isUtf8("\xF5\x80\x80\x80"));
  EXPECT_FALSE(isUtf8("\xFE"));
  EXPECT_FALSE(isUtf8("\xFF"));
}

TEST(Utf8, RefusesTruncatedCharacters) {
  EXPECT_FALSE(isUtf8("\xC3"));
  EXPECT_FALSE(isUtf8("\xE2\x82"));
  EXPECT_FALSE(isUtf8("\xF0\x9F\x91"));
  EXPECT_FALSE(isUtf8("\xC3 "));
  EXPECT_FALSE(isUtf8("\xE2\x82 "));
  EXPECT_FALSE(isUtf8("\xF0\x9F\x91 "));
  EXPECT_FALSE(isUtf8("\xE2\x82\xC3"));
}

// The text lies at the end of what may be read at all.
TEST(Utf8, ReadsNothingBehindTheEnd) {
  const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
  void* const pages =
      ::mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(pages, MAP_FAILED);
  char* const end = static_cast<char*>(pages) + page;
  ASSERT_EQ(::mprotect(end, page, PROT_NONE), 0);
  for (const std::string_view whole : {"\xC3\xA9"sv, "\xE2\x82\xAC"sv, "\xF0\x9F\x91\x8D"sv}) {
    for (std::size_t length = 1; length <= whole.size(); ++length) {
      const std::string_view text(end - length, length);
      whole.copy(end - length, length);
      EXPECT_EQ(isUtf8(text), length == whole.size()) << length;
    }
  }
  EXPECT_EQ(::munmap(pages, 2 * page), 0);
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
