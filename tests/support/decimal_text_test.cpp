#include "qv_commons/support/decimal_text.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <random>
#include <string>

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

std::string text(double value) {
  return std::string(DecimalText(value).view());
}

TEST(DecimalText, WritesScreenSizes) {
  EXPECT_EQ(text(375), "375.0");
  EXPECT_EQ(text(667), "667.0");
  EXPECT_EQ(text(812), "812.0");
  EXPECT_EQ(text(1194.5), "1194.5");
  EXPECT_EQ(text(1179.667), "1179.667");
  EXPECT_EQ(text(414.125), "414.125");
  EXPECT_EQ(text(1e4), "10000.0");
  EXPECT_EQ(text(9999.999), "9999.999");
  EXPECT_EQ(text(9999.9999), "9999.9999");
  EXPECT_EQ(text(0.001), "0.001");
  EXPECT_EQ(text(0.0005), "0.0005");
}

TEST(DecimalText, AlwaysHasAFraction) {
  EXPECT_EQ(text(0), "0.0");
  EXPECT_EQ(text(-0.0), "-0.0");
  EXPECT_EQ(text(1), "1.0");
  EXPECT_EQ(text(-7), "-7.0");
  EXPECT_EQ(text(1e22), "10000000000000000000000.0");
  EXPECT_EQ(text(1e23), "100000000000000000000000.0");
}

TEST(DecimalText, IsTheShortestThatReadsBack) {
  EXPECT_EQ(text(0.1), "0.1");
  EXPECT_EQ(text(0.3), "0.3");
  EXPECT_EQ(text(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(text(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(text(0.0001), "0.0001");
  EXPECT_EQ(text(123456.789), "123456.789");
  EXPECT_EQ(text(9007199254740993.0), "9007199254740992.0");  // 2^53
  EXPECT_EQ(text(2e-5), "0.00002");
}

TEST(DecimalText, ReachesTheEndsOfTheRange) {
  EXPECT_EQ(text(std::numeric_limits<double>::denorm_min()), "0." + std::string(323, '0') + "5");
  EXPECT_EQ(text(std::numeric_limits<double>::min()),
            "0." + std::string(307, '0') + "22250738585072014");
  EXPECT_EQ(text(std::numeric_limits<double>::max()),
            "17976931348623157" + std::string(292, '0') + ".0");
  EXPECT_EQ(text(-2.225073858507201e-308), "-0." + std::string(307, '0') + "2225073858507201");
}

TEST(DecimalText, NamesWhatIsNoNumber) {
  EXPECT_EQ(text(std::nan("")), "nan");
  EXPECT_EQ(text(INFINITY), "inf");
  EXPECT_EQ(text(-INFINITY), "-inf");
}

struct CommaAndDots : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(DecimalText, DoesNotCareAboutTheLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaAndDots));
  EXPECT_EQ(text(1194.5), "1194.5");
  EXPECT_EQ(text(0.1 + 0.2), "0.30000000000000004");
  std::locale::global(before);
}

TEST(DecimalText, AllocatesNothing) {
  const test::AllocationCounter counter;
  std::size_t size = 0;
  for (double value : {375.0, 1179.667, 0.1 + 0.2, -1e300, 5e-324})
    size += DecimalText(value).view().size();
  EXPECT_EQ(counter.calls(), 0);
  EXPECT_EQ(size, 5u + 8u + 19u + 304u + 326u);
}

// The significant digits of a text that DecimalText or std::to_chars wrote.
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
  const std::string own = text(value);
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

long randomCases() {
  return isLongRun() ? 100'000'000 : 1'000'000;
}

TEST(DecimalText, AgreesWithTheLibraryOnRandomDoubles) {
  std::mt19937_64 random(20200401);
  for (long i = 0; i < randomCases(); ++i) {
    const double value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    expectShortest(value);
    if (HasFatalFailure()) return;
  }
}

// Up to where sizes have four digits before the point, and beyond; in a long run all of them.
TEST(DecimalText, AgreesWithTheLibraryOnThousandthsAndBesideThem) {
  for (int thousandths = 1; thousandths < 10'010'000; thousandths += isLongRun() ? 1 : 37) {
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
