#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "qv_commons/time/time_helper.h"

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();

struct Written {
  std::int64_t seconds;
  std::string text;
  std::string digits;
};

TEST(DurationText, IsWrittenAsClocksShowIt) {
  const std::vector<Written> table = {{0, "00:00", ""},
                                      {1, "00:01", "1"},
                                      {59, "00:59", "59"},
                                      {60, "01:00", "100"},
                                      {61, "01:01", "101"},
                                      {125, "02:05", "205"},
                                      {3599, "59:59", "5959"},
                                      {3600, "1:00:00", "10000"},
                                      {3725, "1:02:05", "10205"},
                                      {35999, "9:59:59", "95959"},
                                      {36000, "10:00:00", "100000"},
                                      {86399, "23:59:59", "235959"},
                                      {86400, "24:00:00", "240000"},
                                      {90061, "25:01:01", "250101"},
                                      {359999, "99:59:59", "995959"},
                                      {360000, "100:00:00", "1000000"},
                                      {3600000, "1000:00:00", "10000000"},
                                      {-1, "00:-1", ""},
                                      {-5, "00:-5", ""},
                                      {-10, "00:-10", ""},
                                      {-59, "00:-59", ""},
                                      {-60, "-1:00", ""},
                                      {-65, "-1:-5", ""},
                                      {-600, "-10:00", ""},
                                      {-3599, "-59:-59", ""},
                                      {-3600, "-1:00:00", ""},
                                      {-3605, "-1:00:-5", ""},
                                      {-3725, "-1:-2:-5", ""},
                                      {-36610, "-10:-10:-10", ""},
                                      {-360000, "-100:00:00", ""}};
  for (const Written& expected : table) {
    EXPECT_EQ(QV_TimeHelper::secondsToHms(expected.seconds), expected.text) << expected.seconds;
    EXPECT_EQ(QV_TimeHelper::secondsToHmsDigits(expected.seconds), expected.digits)
        << expected.seconds;
  }
}

TEST(DurationText, ReadsTheHourCountAs32Bits) {
  const std::vector<Written> table = {{7730941129200, "2147483647:00:00", "21474836470000"},
                                      {7730941132799, "2147483647:59:59", "21474836475959"},
                                      {7730941132800, "-2147483648:00:00", "-21474836480000"},
                                      {7730941136525, "-2147483647:02:05", "-21474836470205"},
                                      {15461882265599, "-1:59:59", "-15959"},
                                      {15461882265600, "0:00:00", "0"},
                                      {15461882265907, "0:05:07", "507"},
                                      {15461882269200, "1:00:00", "10000"},
                                      {-7730941132800, "-2147483648:00:00", ""},
                                      {-7730941136399, "-2147483648:-59:-59", ""},
                                      {-7730941136400, "2147483647:00:00", ""},
                                      {-15461882265605, "0:00:-5", ""},
                                      {kMax, "1011703407:30:07", "10117034073007"},
                                      {kMin, "-1011703407:-30:-8", ""}};
  for (const Written& expected : table) {
    EXPECT_EQ(QV_TimeHelper::secondsToHms(expected.seconds), expected.text) << expected.seconds;
    EXPECT_EQ(QV_TimeHelper::secondsToHmsDigits(expected.seconds), expected.digits)
        << expected.seconds;
  }
}

TEST(DurationText, AllocatesNothingUpTo15Characters) {
  test::AllocationCounter counter;
  EXPECT_EQ(QV_TimeHelper::secondsToHms(3725).size(), 7u);
  EXPECT_EQ(QV_TimeHelper::secondsToHms(-3725).size(), 8u);
  EXPECT_EQ(QV_TimeHelper::secondsToHms(3599999996400).size(), 15u);  // "999999999:00:00"
  EXPECT_EQ(QV_TimeHelper::secondsToHmsDigits(7730941132800).size(), 15u);
  EXPECT_EQ(counter.calls(), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToHms(3600000000000).size(), 16u);
  EXPECT_LE(counter.calls(), 1);
}

struct Read {
  std::string text;
  std::int64_t seconds;
};

void expectRead(const std::vector<Read>& table) {
  for (const Read& expected : table) {
    EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds(expected.text), expected.seconds) << expected.text;
    EXPECT_EQ(QV_TimeHelper::hmsToSeconds(expected.text), expected.seconds) << expected.text;
  }
}

TEST(DurationReader, ReadsFieldsFromTheEnd) {
  expectRead({{"1:02:05", 3725},
              {"02:05", 125},
              {"45", 45},
              {"90:00", 5400},
              {"+2:00", 120},
              {"1:99:99", 9639},
              {"99:99:99", 362439},
              {"100:00:00", 360000},
              {"0001:0002:0005", 3725},
              {"00000000000000000000000005", 5}});
}

TEST(DurationReader, TakesASignInEveryField) {
  expectRead({{"-1:30", -30},
              {"-1:-5", -65},
              {"00:-5", -5},
              {"-1:-2:-5", -3725},
              {"1:-2:+5", 3485},
              {"-0:-0:-0", 0},
              {"-45", -45}});
}

TEST(DurationReader, DropsEmptyFields) {
  expectRead({{"1::30", 90},
              {":30", 30},
              {"1:30:", 90},
              {"::1::::02:::05::", 3725},
              {":::7", 7},
              {"7:::", 7},
              {"01:30:", 90}});
}

TEST(DurationReader, ReadsOnlyTheLastThreeFields) {
  expectRead({{"1:2:3:4", 7384},
              {"9:0:0:0", 0},
              {"1:00:00:00", 0},
              {"abc:1:2:3", 3723},
              {"1.5: :1:2:3", 3723},
              {"99999999999999999999:0:0:1", 1}});
}

TEST(DurationReader, IgnoresAFractionInTheLastField) {
  expectRead({{"1:30.75", 90},
              {"1:30.999", 90},
              {"5.", 5},
              {"1.2.3", 1},
              {"01:30.", 90},
              {"1:02:05.abc", 3725},
              {"1:30.5:", 90},
              {"01:30.5:", 90},
              {"-5.9", -5},
              {"1:30. x", 90}});
}

TEST(DurationReader, AllowsWhiteSpaceAroundTheText) {
  expectRead({{" 1:30\n", 90},
              {"\t\n\v\f\r 01:30 \r\f\v\n\t", 90},
              {" 1:30:\u2028", 90},
              {"\u3000\u00a0 02:05\u2003", 125}});
}

TEST(DurationReader, SumsInTheOrderOfTheFields) {
  expectRead({
      {"9223372036854775807", kMax},
      {"-9223372036854775808", kMin},
      {"0:9223372036854775807", kMax},
      {"153722867280912930:07", kMax},
      {"2562047788015215:30:07", kMax},
      {"-2562047788015215:-30:-8", kMin},
      // (seconds + minutes * 60) is -8; minutes and hours alone would leave 64 bits.
      {"2562047788015215:153722867280912930:-9223372036854775808", 9223372036854773992},
  });
}

TEST(DurationReader, AllocatesNothing) {
  const std::string texts[] = {"1:02:05", "  1:02:05.75\n", "1:2:3:4", "-1:-5", "abc", ""};
  test::AllocationCounter counter;
  for (const std::string& text : texts) QV_TimeHelper::tryHmsToSeconds(text);
  EXPECT_EQ(counter.calls(), 0);
}

// Each with what is wrong with it.
const std::vector<std::string>& unreadable() {
  static const std::vector<std::string> texts = {
      "",                           // no field
      "   ",                        // no field
      ":",                          // no field
      "::::",                       // no field
      " : ",                        // no field
      "abc",                        // not an integer
      ".5",                         // nothing before the full stop
      ".",                          //
      "1:.5",                       // nothing before the full stop
      "10:05:.5",                   //
      "1.5:00",                     // a full stop outside of the last field
      "01:30.5:00",                 //
      "1.:2:3",                     //
      "1: 30",                      // a space inside
      "1 :30",                      //
      "1: :30",                     // a field of a space is not empty
      "1:30 s",                     // not an integer
      "30 .5",                      //
      "-",                          // a sign alone
      "+",                          //
      "-:30",                       //
      "--5",                        // two signs
      "+-5",                        //
      "5-",                         //
      "-.5",                        //
      "1,5",                        //
      "1e3",                        //
      "0x10",                       //
      "1/:30",                      // the characters beside the digits
      "1;:30",                      //
      "0a:00",                      //
      "00:0/",                      //
      "0;:00:00",                   //
      "00-00",                      //
      "00:00-00",                   //
      "\xd9\xa1:30",                // digits of another script
      "\xef\xbc\x91",               //
      "1:30\xff",                   // not UTF-8
      "9223372036854775808",        // beyond 64 bits
      "-9223372036854775809",       //
      "0:9223372036854775808",      //
      "99999999999999999999",       //
      "2562047788015216:00:00",     // hours * 3600
      "-2562047788015216:00:00",    //
      "153722867280912931:00",      // minutes * 60
      "-153722867280912931:00",     //
      "153722867280912930:08",      // seconds + minutes * 60
      "-1:1:9223372036854775807",   // the same, though the hours would bring it back
      "1:-1:-9223372036854775808",  //
      "2562047788015215:30:08",     // the sum
      "-2562047788015215:-30:-9",   //
  };
  return texts;
}

TEST(DurationReader, GivesNulloptForUnreadableTexts) {
  for (const std::string& text : unreadable()) {
    EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds(text), std::nullopt) << '"' << text << '"';
  }
  EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds({"1:30\0", 5}), std::nullopt);
  // One character too long for a clock's text, whose last four would else read as "1:25".
  EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds({"0abcd\x01\0\x02\x35", 9}), std::nullopt);
  EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds(std::string_view()), std::nullopt);
}

TEST(DurationText, IsReadByItsColonsWhereverTheyAre) {
  EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds("12:3:456"), 43836);
  EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds("1:234:56"), 17696);
  EXPECT_EQ(QV_TimeHelper::tryHmsToSeconds("123:4:5"), 443045);
}

// Of up to six characters each, with at most two colons: the fields before the last three count
// for nothing.
TEST(DurationText, HasNoControlCharacterForADigit) {
  constexpr std::string_view kCharacters(
      "05:\x01\0\x09"
      "a",
      7);
  const auto isControl = [](char c) { return c == '\x01' || c == '\0'; };
  for (std::size_t size = 4; size <= 6; ++size) {
    std::size_t texts = 1;
    for (std::size_t i = 0; i < size; ++i) texts *= kCharacters.size();
    for (std::size_t number = 0; number < texts; ++number) {
      std::string text;
      for (std::size_t rest = number; text.size() < size; rest /= kCharacters.size()) {
        text += kCharacters[rest % kCharacters.size()];
      }
      const bool isUnreadable = std::count(text.begin(), text.end(), ':') <= 2 &&
                                std::any_of(text.begin(), text.end(), isControl);
      if (!isUnreadable) continue;
      ASSERT_EQ(QV_TimeHelper::tryHmsToSeconds(text), std::nullopt) << testing::PrintToString(text);
    }
  }
}

class UnreadableDurationDeathTest : public testing::TestWithParam<std::string> {};

// Spells out the characters that mean something in a regular expression.
std::string literally(const std::string& text) {
  std::string pattern;
  for (const char c : text) {
    if (std::string_view(".+*?()[]{}|^$\\").find(c) != std::string_view::npos) pattern += '\\';
    pattern += c;
  }
  return pattern;
}

TEST_P(UnreadableDurationDeathTest, EndsTheProcessAndNamesTheText) {
  EXPECT_DEATH(QV_TimeHelper::hmsToSeconds(GetParam()),
               "QV_Commons fatal error: QV_TimeHelper: hmsToSeconds can't read \"" +
                   literally(GetParam()) + "\"\n");
}

INSTANTIATE_TEST_SUITE_P(Unreadable, UnreadableDurationDeathTest,
                         testing::Values("", "   ", ":", "abc", ".5", "1.5:00", "1: 30", "1:30 s",
                                         "2562047788015216:00:00"));

TEST(DurationText, MayBeAskedForOnSeveralThreads) {
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([] {
      for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(QV_TimeHelper::hmsToSeconds(QV_TimeHelper::secondsToHms(3725 + i)), 3725 + i);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace qv_commons
