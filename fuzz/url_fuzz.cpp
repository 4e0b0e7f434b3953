// Parsing a URL never crashes, and the parts of one that parses make up its text.

#include <optional>
#include <string>

#include "qv_commons/support/url.h"

#include "fuzz/fuzz.h"

namespace {

void append(std::string& text, std::string_view delimiter,
            const std::optional<std::string_view>& part) {
  if (part) text.append(delimiter).append(*part);
}

// RFC 3986, section 5.3, with the authority taken apart.
std::string recomposed(const qv_commons::URL& url) {
  std::string text(url.scheme());
  text += ':';
  if (url.host()) text += "//";
  if (url.userinfo()) text.append(*url.userinfo()).append("@");
  append(text, "", url.host());
  append(text, ":", url.port());
  text.append(url.path());
  append(text, "?", url.query());
  append(text, "#", url.fragment());
  return text;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::URL;
  using qv_commons::fuzz::check;
  const std::string text(qv_commons::fuzz::textOf(data, size));
  const std::optional<URL> url = URL::parse(text);
  if (!url) return 0;

  check(url->text() == text, "the text is kept");
  check(recomposed(*url) == text, "the parts make up the text");
  check(!url->scheme().empty(), "there is a scheme");
  for (const char c : text) check('!' <= c && c <= '~', "every character is a visible ASCII one");
  check(!url->host() || url->path().empty() || url->path().front() == '/',
        "a path after a host begins with a slash");
  check(!URL::parse(text + " ") && !URL::parse(" " + text), "a space makes it invalid");
  check(URL::parse(text + (url->fragment() ? "" : "#") + "%41?/:@").has_value(),
        "a fragment may follow");
  return 0;
}
