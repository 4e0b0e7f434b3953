#include "qv_commons/support/url.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace qv_commons {
namespace {

class GoodURL : public testing::TestWithParam<std::string> {};

TEST_P(GoodURL, KeepsItsText) {
  const std::optional<URL> url = URL::parse(GetParam());
  ASSERT_TRUE(url);
  EXPECT_EQ(url->text(), GetParam());
}

// RFC 3986, sections 1.1.2 and 3, and the base of the examples in 5.4.
INSTANTIATE_TEST_SUITE_P(
    OfTheRfcsText, GoodURL,
    testing::Values("ftp://ftp.is.co.za/rfc/rfc1808.txt", "http://www.ietf.org/rfc/rfc2396.txt",
                    "ldap://[2001:db8::7]/c=GB?objectClass?one", "mailto:John.Doe@example.com",
                    "news:comp.infosystems.www.servers.unix", "tel:+1-816-555-1212",
                    "telnet://192.0.2.16:80/", "urn:example:animal:ferret:nose",
                    "foo://example.com:8042/over/there?name=ferret#nose", "http://a/b/c/d;p?q"));

// What the references of RFC 3986, section 5.4, resolve to, and those that are absolute already.
INSTANTIATE_TEST_SUITE_P(OfTheRfcsResolutions, GoodURL,
                         testing::Values("g:h", "http:g", "http://g", "http://a/b/c/d;p?y",
                                         "http://a/b/c/d;p?q#s", "http://a/b/c/g;x?y#s",
                                         "http://a/b/c/g..", "http://a/b/c/g;x=1/y",
                                         "http://a/b/c/g?y/../x", "http://a/b/c/g#s/../x"));

INSTANTIATE_TEST_SUITE_P(
    OfTheGrammar, GoodURL,
    testing::Values("a:", "a:?#", "a://", "a://@:", "a://?q", "a:/b//c", "a:////",
                    "file:///etc/hosts", "A1+-.://h", "HTTP://EXAMPLE.com/%7Efoo/%aF",
                    "ftp://user:pass%20word@h:021/", "http://h:99999999999999999999/",
                    "http://%e4%bd%a0-._~!$&'()*+,;=/", "http://h/-._~!$&'()*+,;=:@",
                    "http://h?-._~!$&'()*+,;=:@/?", "http://h#-._~!$&'()*+,;=:@/?",
                    "http://h/a:b@c://d", "http://u@[::1]:8080/", "http://[v1F.a:b;~]:/",
                    "http://999.1.2.3/"));

class BadURL : public testing::TestWithParam<std::string> {};

TEST_P(BadURL, IsRefused) {
  EXPECT_EQ(URL::parse(GetParam()), std::nullopt);
}

// RFC 3986, section 5.4: there is no base here to resolve them against.
INSTANTIATE_TEST_SUITE_P(RelativeReference, BadURL,
                         testing::Values("", "g", "./g", "g/", "/g", "//g", "?y", "g?y", "#s",
                                         "g#s", "g?y#s", ";x", "g;x", "g;x?y#s", ".", "./", "..",
                                         "../", "../g", "../..", "../../g", "/./g", "g?y/./x",
                                         "g#s/./x", "g?x:y", "g#x:y", "/g:h", "//g:80"));

INSTANTIATE_TEST_SUITE_P(Scheme, BadURL,
                         testing::Values(":", "://h", "1a:b", "+a:b", "-a:b", ".a:b", "a_b:c",
                                         "a%41:b", "a b:c", "\xc3\xa4:b", " http://h", "@:b"));

INSTANTIATE_TEST_SUITE_P(PercentEncoding, BadURL,
                         testing::Values("http://h/%", "http://h/%4", "http://h/%G1",
                                         "http://h/%1g", "http://h/%%41", "http://h/%4/1",
                                         "http://h%/", "http://h%2/", "http://u%@h/",
                                         "http://h/?%0", "http://h/#%x0", "http://h/%-1"));

INSTANTIATE_TEST_SUITE_P(Authority, BadURL,
                         testing::Values("http://a@b@c/", "http://h:80a/", "http://h:-1/",
                                         "http://h: 80/", "http://h:80:80/", "http://h:%38/",
                                         "http://::1/", "http://a[b]/", "http://[::1]a/",
                                         "http://[::1]:a/", "http://[::1/", "http://[", "http://]",
                                         "http://::1]/", "http://[[::1]]/", "http://[]/",
                                         "http://u[@h/", "http://[a@b]/"));

INSTANTIATE_TEST_SUITE_P(OutsideTheAuthority, BadURL,
                         testing::Values("http://h/[", "http://h/]", "http://h/?[]", "http://h/#[",
                                         "http://h/#a#b", "http://h##", "a:[::1]"));

INSTANTIATE_TEST_SUITE_P(IPvFuture, BadURL,
                         testing::Values("http://[v.a]/", "http://[v1.]/", "http://[v1a]/",
                                         "http://[vg.a]/", "http://[v]/", "http://[1.a]/",
                                         "http://[v1.%41]/", "http://[v1.a@]/"));

class GoodIPv6Address : public testing::TestWithParam<std::string> {};

TEST_P(GoodIPv6Address, CanBeAHost) {
  EXPECT_TRUE(URL::parse("http://[" + GetParam() + "]/"));
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

class BadIPv6Address : public testing::TestWithParam<std::string> {};

TEST_P(BadIPv6Address, IsRefused) {
  EXPECT_FALSE(URL::parse("http://[" + GetParam() + "]/"));
}

INSTANTIATE_TEST_SUITE_P(
    OfTheGrammar, BadIPv6Address,
    testing::Values("", ":", ":::", "1", "1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:9",
                    "1:2:3:4:5:6:7:", ":1:2:3:4:5:6:7", "1:2:3:4:5:6:7:8:", ":1:2:3:4:5:6:7:8",
                    "1:2:3:4:5:6:7:8::", "::1:2:3:4:5:6:7:8", "1::2::3", "1:::2",
                    "::1:", ":1::", "12345::", "::g", "1:2:3:4:5:6:7:192.0.2.16", "192.0.2.16",
                    "192.0.2.16::", "::192.0.2.16:1", "1:2:3:4:5:192.0.2.16", "::192.0.2",
                    "::192.0.2.16.1", "::256.0.0.0", "::192.0.2.", "::.0.2.16", "::192..2.16",
                    "::01.0.0.0", "::1000.0.0.0", "::1.2.3.a", "fe80::1%25en0"));

TEST(URL, RefusesEveryCharacterThatNeedsEncoding) {
  std::vector<unsigned char> refused = {' ', '"', '<', '>', '\\', '^', '`', '{', '|', '}', 0x7f};
  for (unsigned char c = 0; c < 0x20; ++c) refused.push_back(c);
  for (int c = 0x80; c < 0x100; ++c) refused.push_back(static_cast<unsigned char>(c));
  for (const unsigned char c : refused) {
    const std::string text(1, static_cast<char>(c));
    for (const std::string place :
         {"a%:b", "a://%@h", "a://%", "a://h:%", "a:%", "a:b?%", "a:b#%", "%a:b", "a://[v1.%]"}) {
      const std::string url = std::string(place).replace(place.find('%'), 1, text);
      EXPECT_EQ(URL::parse(url), std::nullopt) << "byte " << int{c} << " in " << place;
    }
  }
}

TEST(URL, TakesEveryOtherCharacterInPaths) {
  for (const char c : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
                                  "-._~!$&'()*+,;=:@/")) {
    EXPECT_TRUE(URL::parse("a:b" + std::string(1, c))) << c;
  }
}

TEST(URL, IsEqualByText) {
  EXPECT_EQ(URL::parse("http://a/b"), URL::parse("http://a/b"));
  EXPECT_NE(URL::parse("http://a/b"), URL::parse("HTTP://a/b"));
  EXPECT_NE(URL::parse("http://a/%7e"), URL::parse("http://a/~"));
}

}  // namespace
}  // namespace qv_commons
