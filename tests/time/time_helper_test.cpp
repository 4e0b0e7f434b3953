#include "qv_commons/time/time_helper.h"

#include <cmath>
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using testing::ElementsAre;

constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();

class Now : public testing::Test {
 protected:
  std::int64_t millisecondsAt(double now) {
    platform.clock().time = instantAt(now);
    return QV_TimeHelper::currentTimeInMilliseconds();
  }
  PlatformInteger secondsAt(double now) {
    platform.clock().time = instantAt(now);
    return QV_TimeHelper::currentTimeInSeconds();
  }

  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
};

TEST_F(Now, IsTheClocksReadingInMilliseconds) {
  EXPECT_EQ(millisecondsAt(0), 0);
  EXPECT_EQ(millisecondsAt(1700000000), 1700000000000);
  EXPECT_EQ(millisecondsAt(1700000000.25), 1700000000250);
}

TEST_F(Now, TruncatesTheMilliseconds) {
  EXPECT_EQ(millisecondsAt(1700000000.1239), 1700000000123);
  EXPECT_EQ(millisecondsAt(0.9999), 999);
  EXPECT_EQ(millisecondsAt(-0.9999), -999);
  EXPECT_EQ(millisecondsAt(-1.5), -1500);
  EXPECT_EQ(millisecondsAt(-0.0001), 0);
}

TEST_F(Now, FormsTheMillisecondsInDoublePrecision) {
  EXPECT_EQ(millisecondsAt(1.001), 1000);  // 1000.9999999999999
  EXPECT_EQ(millisecondsAt(1.002), 1002);
  EXPECT_EQ(millisecondsAt(1.005), 1004);  // 1004.9999999999999
}

TEST_F(Now, IsTheClocksReadingInSecondsTruncated) {
  EXPECT_EQ(secondsAt(0), 0);
  EXPECT_EQ(secondsAt(1700000000), 1700000000);
  EXPECT_EQ(secondsAt(1700000000.9), 1700000000);
  EXPECT_EQ(secondsAt(0.999999), 0);
  EXPECT_EQ(secondsAt(-0.999999), 0);
  EXPECT_EQ(secondsAt(-1.9), -1);
}

TEST_F(Now, StaysDefinedIfTheClockExceeds64Bits) {
  EXPECT_EQ(secondsAt(0x1p63), kMax);
  EXPECT_EQ(secondsAt(-0x1p63), kMin);
  EXPECT_EQ(secondsAt(std::nextafter(0x1p63, 0)), 9223372036854774784);
  EXPECT_EQ(secondsAt(std::nextafter(-0x1p63, -1e300)), kMin);
  EXPECT_EQ(secondsAt(std::numeric_limits<double>::infinity()), kMax);
  EXPECT_EQ(millisecondsAt(1e16), kMax);
  EXPECT_EQ(millisecondsAt(-1e308), kMin);
}

TEST_F(Now, ReadsTheClockOnceACall) {
  QV_TimeHelper::currentTimeInMilliseconds();
  EXPECT_THAT(platform.record().lines(), ElementsAre("clock.now"));
  QV_TimeHelper::currentTimeInSeconds();
  EXPECT_THAT(platform.record().lines(), ElementsAre("clock.now", "clock.now"));
}

TEST_F(Now, GoesBackIfTheClockIsSetBack) {
  EXPECT_EQ(millisecondsAt(1000), 1000000);
  EXPECT_EQ(millisecondsAt(999), 999000);
}

TEST_F(Now, AllocatesNothing) {
  platform.record().setPaused(true);
  test::AllocationCounter counter;
  QV_TimeHelper::currentTimeInMilliseconds();
  QV_TimeHelper::currentTimeInSeconds();
  EXPECT_EQ(counter.calls(), 0);
}

TEST(SecondsToMinutes, Truncates) {
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(0, false), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(59, false), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(60, false), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(119, false), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(-59, false), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(-61, false), -1);
}

TEST(SecondsToMinutes, RoundsUpARestOfMoreThanOneSecond) {
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(0, true), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(1, true), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(2, true), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(59, true), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(60, true), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(61, true), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(62, true), 2);
}

TEST(SecondsToMinutes, NeverRoundsNegativeDurationsUp) {
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(-59, true), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(-61, true), -1);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(-119, true), -1);
}

TEST(SecondsToMinutes, TakesAll64Bits) {
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(kMin, false), -153722867280912930);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(kMin, true), -153722867280912930);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(kMax, false), 153722867280912930);
  EXPECT_EQ(QV_TimeHelper::secondsToMinutes(kMax, true), 153722867280912931);  // a rest of 7
}

TEST(SecondsToDays, Truncates) {
  EXPECT_EQ(QV_TimeHelper::secondsToDays(0), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToDays(86399), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToDays(86400), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToDays(172799), 1);
  EXPECT_EQ(QV_TimeHelper::secondsToDays(-1), 0);
  EXPECT_EQ(QV_TimeHelper::secondsToDays(-86401), -1);
}

TEST(SecondsToDays, TakesAll64Bits) {
  EXPECT_EQ(QV_TimeHelper::secondsToDays(kMin), -106751991167300);
  EXPECT_EQ(QV_TimeHelper::secondsToDays(kMax), 106751991167300);
}

template <class Declared, class Expected>
constexpr bool kSame = std::is_same_v<Declared, Expected>;

TEST(TimeHelper, KeepsTheTwoIntegerTypesApart) {
  EXPECT_TRUE((kSame<decltype(&QV_TimeHelper::currentTimeInMilliseconds), std::int64_t (*)()>));
  EXPECT_TRUE((kSame<decltype(&QV_TimeHelper::currentTimeInSeconds), PlatformInteger (*)()>));
  EXPECT_EQ(sizeof(PlatformInteger), 8U);  // on systems of 32 bits, too
  EXPECT_TRUE(
      (kSame<decltype(&QV_TimeHelper::secondsToMinutes), std::int64_t (*)(std::int64_t, bool)>));
  EXPECT_TRUE(
      (kSame<decltype(&QV_TimeHelper::secondsToDays), PlatformInteger (*)(PlatformInteger)>));
}

}  // namespace
}  // namespace qv_commons
