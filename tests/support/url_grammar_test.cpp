#include "qv_commons/support/url_grammar.h"

#include <gtest/gtest.h>
#include <string>

namespace qv_commons {
namespace {

class GoodIPv6Address : public testing::TestWithParam<std::string> {};
class BadIPv6Address : public testing::TestWithParam<std::string> {};

TEST_P(GoodIPv6Address, IsOne) {
  EXPECT_TRUE(isIPv6Address(GetParam()));
}

TEST_P(BadIPv6Address, IsNone) {
  EXPECT_FALSE(isIPv6Address(GetParam()));
}

// One for each alternative of the rule "IPv6address", at its longest and shortest.
INSTANTIATE_TEST_SUITE_P(
    OfTheGrammar, GoodIPv6Address,
    testing::Values("1:2:3:4:5:6:7:8", "1:2:3:4:5:6:192.0.2.16", "::2:3:4:5:6:7:8",
                    "::2:3:4:5:6:192.0.2.16", "1::3:4:5:6:7:8", "::3:4:5:6:7:8",
                    "1::3:4:5:6:192.0.2.16", "1:2::4:5:6:7:8", "::4:5:6:7:8", "1:2:3::5:6:7:8",
                    "::5:6:7:8", "1:2:3:4::6:7:8", "::6:7:8", "1:2:3:4:5::7:8", "::7:8",
                    "1:2:3:4:5::192.0.2.16", "::192.0.2.16", "1:2:3:4:5:6::8", "::8",
                    "1:2:3:4:5:6:7::", "1::", "::", "2001:db8::7", "ABCD:ef01::0", "0000::00",
                    "::0.0.0.0", "::255.255.255.255", "::199.249.99.10"));

INSTANTIATE_TEST_SUITE_P(
    OfTheGrammar, BadIPv6Address,
    testing::Values("", ":", ":::", "1", "1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:9",
                    "1:2:3:4:5:6:7:", ":1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:", ":1:2:3:4:5:6:7:8",
                    "1:2:3:4:5:6:7:8::", "::1:2:3:4:5:6:7:8", "1::2::3", "1:::2",
                    "::1:", ":1::", "12345::", "::g", "1:2:3:4:5:6:7:192.0.2.16", "192.0.2.16",
                    "192.0.2.16::", "::192.0.2.16:1", "1:2:3:4:5:192.0.2.16", "::192.0.2",
                    "::192.0.2.16.1", "::256.0.0.0", "::192.0.2.", "::.0.2.16", "::192..2.16",
                    "::01.0.0.0", "::1000.0.0.0", "::1.2.3.a", "fe80::1%25en0", "v1.a"));

}  // namespace
}  // namespace qv_commons
