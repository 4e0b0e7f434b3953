#include "qv_commons/support/decimal_text.h"

#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

TEST(DecimalText, WritesScreenSizes) {
  EXPECT_EQ(decimalText(375), "375.0");
  EXPECT_EQ(decimalText(667), "667.0");
  EXPECT_EQ(decimalText(812), "812.0");
  EXPECT_EQ(decimalText(1194.5), "1194.5");
  EXPECT_EQ(decimalText(1179.667), "1179.667");
  EXPECT_EQ(decimalText(414.125), "414.125");
  EXPECT_EQ(decimalText(1e4), "10000.0");
  EXPECT_EQ(decimalText(9999.999), "9999.999");
  EXPECT_EQ(decimalText(9999.9999), "9999.9999");
  EXPECT_EQ(decimalText(999999.999), "999999.999");
  EXPECT_EQ(decimalText(1e6), "1000000.0");
  EXPECT_EQ(decimalText(1000000.001), "1000000.001");
  EXPECT_EQ(decimalText(0.001), "0.001");
  EXPECT_EQ(decimalText(0.0005), "0.0005");
}

TEST(DecimalText, AlwaysHasAFraction) {
  EXPECT_EQ(decimalText(0), "0.0");
  EXPECT_EQ(decimalText(-0.0), "-0.0");
  EXPECT_EQ(decimalText(1), "1.0");
  EXPECT_EQ(decimalText(-7), "-7.0");
  EXPECT_EQ(decimalText(1e22), "10000000000000000000000.0");
  EXPECT_EQ(decimalText(1e23), "100000000000000000000000.0");
}

TEST(DecimalText, IsTheShortestThatReadsBack) {
  EXPECT_EQ(decimalText(0.1), "0.1");
  EXPECT_EQ(decimalText(0.3), "0.3");
  EXPECT_EQ(decimalText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(decimalText(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(decimalText(0.0001), "0.0001");
  EXPECT_EQ(decimalText(123456.789), "123456.789");
  EXPECT_EQ(decimalText(9007199254740993.0), "9007199254740992.0");  // 2^53
  EXPECT_EQ(decimalText(2e-5), "0.00002");
}

TEST(DecimalText, ReachesTheEndsOfTheRange) {
  EXPECT_EQ(decimalText(std::numeric_limits<double>::denorm_min()),
            "0." + std::string(323, '0') + "5");
  EXPECT_EQ(decimalText(std::numeric_limits<double>::min()),
            "0." + std::string(307, '0') + "22250738585072014");
  EXPECT_EQ(decimalText(std::numeric_limits<double>::max()),
            "17976931348623157" + std::string(292, '0') + ".0");
  EXPECT_EQ(decimalText(-2.225073858507201e-308),
            "-0." + std::string(307, '0') + "2225073858507201");
}

TEST(DecimalText, NamesNotANumberAndTheInfinities) {
  EXPECT_EQ(decimalText(std::nan("")), "nan");
  EXPECT_EQ(decimalText(-std::nan("")), "nan");
  EXPECT_EQ(decimalText(INFINITY), "inf");
  EXPECT_EQ(decimalText(-INFINITY), "-inf");
}

// Makes the German locale in a folder of its own, because few machines have it, and sets it.
class GermanLocale {
 public:
  GermanLocale() {
    const std::string command = "localedef -i de_DE -f UTF-8 " + folder_ + "/de_DE.UTF-8";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    setenv("LOCPATH", folder_.c_str(), 1);
    EXPECT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
  }
  ~GermanLocale() {
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
    std::filesystem::remove_all(folder_);
  }

 private:
  std::string folder_ = [] {
    std::string folder = testing::TempDir() + "locale.XXXXXX";
    return std::string(mkdtemp(folder.data()));
  }();
};

TEST(DecimalText, IsIndependentOfTheLocale) {
  const GermanLocale german;
  char byPrintf[8];
  std::snprintf(byPrintf, sizeof byPrintf, "%.1f", 0.5);
  ASSERT_STREQ(byPrintf, "0,5");
  EXPECT_EQ(decimalText(1194.5), "1194.5");
  EXPECT_EQ(decimalText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(decimalText(1234567.5), "1234567.5");
  EXPECT_EQ(decimalText(-2e-5), "-0.00002");
  EXPECT_EQ(decimalText(1e22), "10000000000000000000000.0");
}

TEST(DecimalText, OfAScreenSizeAllocatesNothing) {
  const test::AllocationCounter counter;
  EXPECT_EQ(decimalText(375).size(), 5u);
  EXPECT_EQ(decimalText(1179.667).size(), 8u);
  EXPECT_EQ(counter.calls(), 0);
}

// The significant digits of a text that decimalText or std::to_chars wrote.
std::string digitsOf(std::string_view decimal) {
  std::string digits;
  for (char c : decimal.substr(0, decimal.find('e'))) {
    if (c != '.' && c != '-') digits += c;
  }
  digits.erase(0, digits.find_first_not_of('0'));
  return digits.substr(0, digits.find_last_not_of('0') + 1);
}

// The C++ library of this machine has floating-point to_chars and strtod, written by others.
void expectShortest(double value) {
  const std::string own = decimalText(value);
  ASSERT_EQ(std::strtod(own.c_str(), nullptr), value);
  char buffer[64];
  const char* end =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
  ASSERT_EQ(digitsOf(own), digitsOf({buffer, static_cast<std::size_t>(end - buffer)})) << own;
}

bool isLongRun() {
  const char* longRun = std::getenv("QV_LONG_TESTS");
  return longRun != nullptr && *longRun == '1';
}

TEST(DecimalText, AgreesWithTheLibraryOnRandomDoubles) {
  std::mt19937_64 random(20200401);
  for (int count = isLongRun() ? 100'000'000 : 100'000; count > 0; --count) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    expectShortest(value);
    if (HasFatalFailure()) return;
  }
}

// In a long run, all that a screen of up to ten thousand points can have.
TEST(DecimalText, AgreesWithTheLibraryOnThousandthsAndBesideThem) {
  for (int thousandths = 1; thousandths < 10'000'000; thousandths += isLongRun() ? 1 : 997) {
    const double value = thousandths / 1000.0;
    for (double near : {std::nextafter(value, 0), value, std::nextafter(value, INFINITY)}) {
      expectShortest(near);
      if (HasFatalFailure()) return;
    }
  }
}

TEST(DecimalText, AgreesWithTheLibraryAtEveryPowerOfTwo) {
  for (int exponent = -1074; exponent <= 1023; ++exponent) {
    const double power = std::ldexp(1.0, exponent);
    for (double value : {std::nextafter(power, 0), power, std::nextafter(power, INFINITY)}) {
      if (value == 0) continue;
      expectShortest(value);
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace qv_commons
