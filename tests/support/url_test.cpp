#include "qv_commons/support/url.h"

#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace qv_commons {
namespace {

constexpr std::nullopt_t kAbsent = std::nullopt;
using Part = std::optional<std::string_view>;

struct Good {
  std::string text;
  std::string_view scheme;
  Part userinfo;
  Part host;
  Part port;
  std::string_view path;
  Part query;
  Part fragment;
};

void PrintTo(const Good& good, std::ostream* out) {
  *out << good.text;
}

class GoodURL : public testing::TestWithParam<Good> {};

TEST_P(GoodURL, HasTheseParts) {
  const Good& good = GetParam();
  const std::optional<URL> url = URL::parse(good.text);
  ASSERT_TRUE(url);
  EXPECT_EQ(url->text(), good.text);
  EXPECT_EQ(url->scheme(), good.scheme);
  EXPECT_EQ(url->userinfo(), good.userinfo);
  EXPECT_EQ(url->host(), good.host);
  EXPECT_EQ(url->port(), good.port);
  EXPECT_EQ(url->path(), good.path);
  EXPECT_EQ(url->query(), good.query);
  EXPECT_EQ(url->fragment(), good.fragment);
}

// RFC 3986, sections 1.1.2 and 3, and the base of the examples in 5.4.
INSTANTIATE_TEST_SUITE_P(
    OfTheRfcsText, GoodURL,
    testing::Values(Good{"ftp://ftp.is.co.za/rfc/rfc1808.txt", "ftp", kAbsent, "ftp.is.co.za",
                         kAbsent, "/rfc/rfc1808.txt", kAbsent, kAbsent},
                    Good{"http://www.ietf.org/rfc/rfc2396.txt", "http", kAbsent, "www.ietf.org",
                         kAbsent, "/rfc/rfc2396.txt", kAbsent, kAbsent},
                    Good{"ldap://[2001:db8::7]/c=GB?objectClass?one", "ldap", kAbsent,
                         "[2001:db8::7]", kAbsent, "/c=GB", "objectClass?one", kAbsent},
                    Good{"mailto:John.Doe@example.com", "mailto", kAbsent, kAbsent, kAbsent,
                         "John.Doe@example.com", kAbsent, kAbsent},
                    Good{"news:comp.infosystems.www.servers.unix", "news", kAbsent, kAbsent,
                         kAbsent, "comp.infosystems.www.servers.unix", kAbsent, kAbsent},
                    Good{"tel:+1-816-555-1212", "tel", kAbsent, kAbsent, kAbsent, "+1-816-555-1212",
                         kAbsent, kAbsent},
                    Good{"telnet://192.0.2.16:80/", "telnet", kAbsent, "192.0.2.16", "80", "/",
                         kAbsent, kAbsent},
                    Good{"urn:example:animal:ferret:nose", "urn", kAbsent, kAbsent, kAbsent,
                         "example:animal:ferret:nose", kAbsent, kAbsent},
                    Good{"foo://example.com:8042/over/there?name=ferret#nose", "foo", kAbsent,
                         "example.com", "8042", "/over/there", "name=ferret", "nose"},
                    Good{"http://a/b/c/d;p?q", "http", kAbsent, "a", kAbsent, "/b/c/d;p", "q",
                         kAbsent}));

// What the references of RFC 3986, section 5.4, resolve to, and those that are absolute already.
INSTANTIATE_TEST_SUITE_P(
    OfTheRfcsResolutions, GoodURL,
    testing::Values(
        Good{"g:h", "g", kAbsent, kAbsent, kAbsent, "h", kAbsent, kAbsent},
        Good{"http:g", "http", kAbsent, kAbsent, kAbsent, "g", kAbsent, kAbsent},
        Good{"http://g", "http", kAbsent, "g", kAbsent, "", kAbsent, kAbsent},
        Good{"http://a/b/c/d;p?y", "http", kAbsent, "a", kAbsent, "/b/c/d;p", "y", kAbsent},
        Good{"http://a/b/c/d;p?q#s", "http", kAbsent, "a", kAbsent, "/b/c/d;p", "q", "s"},
        Good{"http://a/b/c/g;x?y#s", "http", kAbsent, "a", kAbsent, "/b/c/g;x", "y", "s"},
        Good{"http://a/b/c/g..", "http", kAbsent, "a", kAbsent, "/b/c/g..", kAbsent, kAbsent},
        Good{"http://a/b/c/g;x=1/y", "http", kAbsent, "a", kAbsent, "/b/c/g;x=1/y", kAbsent,
             kAbsent},
        Good{"http://a/b/c/g?y/../x", "http", kAbsent, "a", kAbsent, "/b/c/g", "y/../x", kAbsent},
        Good{"http://a/b/c/g#s/../x", "http", kAbsent, "a", kAbsent, "/b/c/g", kAbsent, "s/../x"}));

INSTANTIATE_TEST_SUITE_P(
    OfTheGrammar, GoodURL,
    testing::Values(
        Good{"a:", "a", kAbsent, kAbsent, kAbsent, "", kAbsent, kAbsent},
        Good{"a:?#", "a", kAbsent, kAbsent, kAbsent, "", "", ""},
        Good{"a://", "a", kAbsent, "", kAbsent, "", kAbsent, kAbsent},
        Good{"a://@:", "a", "", "", "", "", kAbsent, kAbsent},
        Good{"a://?q", "a", kAbsent, "", kAbsent, "", "q", kAbsent},
        Good{"a:/b//c", "a", kAbsent, kAbsent, kAbsent, "/b//c", kAbsent, kAbsent},
        Good{"a:////", "a", kAbsent, "", kAbsent, "//", kAbsent, kAbsent},
        Good{"file:///etc/hosts", "file", kAbsent, "", kAbsent, "/etc/hosts", kAbsent, kAbsent},
        Good{"A1+-.://h", "A1+-.", kAbsent, "h", kAbsent, "", kAbsent, kAbsent},
        Good{"HTTP://EXAMPLE.com/%7Efoo/%aF", "HTTP", kAbsent, "EXAMPLE.com", kAbsent,
             "/%7Efoo/%aF", kAbsent, kAbsent},
        Good{"ftp://user:pass%20word@h:021/", "ftp", "user:pass%20word", "h", "021", "/", kAbsent,
             kAbsent},
        Good{"http://h:99999999999999999999/", "http", kAbsent, "h", "99999999999999999999", "/",
             kAbsent, kAbsent},
        Good{"http://%e4%bd%a0-._~!$&'()*+,;=/", "http", kAbsent,
             "%e4%bd%a0-._~!$&'()*+,;=", kAbsent, "/", kAbsent, kAbsent},
        Good{"http://h/-._~!$&'()*+,;=:@", "http", kAbsent, "h", kAbsent, "/-._~!$&'()*+,;=:@",
             kAbsent, kAbsent},
        Good{"http://h?-._~!$&'()*+,;=:@/?", "http", kAbsent, "h", kAbsent, "",
             "-._~!$&'()*+,;=:@/?", kAbsent},
        Good{"http://h#-._~!$&'()*+,;=:@/?", "http", kAbsent, "h", kAbsent, "", kAbsent,
             "-._~!$&'()*+,;=:@/?"},
        Good{"http://h/a:b@c://d", "http", kAbsent, "h", kAbsent, "/a:b@c://d", kAbsent, kAbsent},
        Good{"http://u@[::1]:8080/", "http", "u", "[::1]", "8080", "/", kAbsent, kAbsent},
        Good{"http://[v1F.a:b;~]:/", "http", kAbsent, "[v1F.a:b;~]", "", "/", kAbsent, kAbsent},
        Good{"http://999.1.2.3/", "http", kAbsent, "999.1.2.3", kAbsent, "/", kAbsent, kAbsent}));

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

TEST(URL, KeepsItsPartsWhenCopiedAndMoved) {
  std::optional<URL> first = URL::parse("x://h/p");  // short enough to be stored inside the string
  const URL copy = *first;
  first.reset();
  EXPECT_EQ(copy.host(), "h");
  const URL moved = URL(copy);
  EXPECT_EQ(moved.path(), "/p");
}

}  // namespace
}  // namespace qv_commons
