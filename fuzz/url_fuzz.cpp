// Parsing a URL never crashes, and what parses has the form that RFC 3986 gives it.

#include <optional>
#include <string>

#include "qv_commons/support/url.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::URL;
  using qv_commons::fuzz::check;
  const std::string text(qv_commons::fuzz::textOf(data, size));
  const std::optional<URL> url = URL::parse(text);
  if (!url) return 0;

  check(url->text() == text, "the text is kept");
  check(text.find(':') != text.npos && text.find_first_of(":/?#") == text.find(':'),
        "a scheme comes first");
  for (const char c : text) check('!' <= c && c <= '~', "every character is a visible ASCII one");
  check(!URL::parse(text + " ") && !URL::parse(" " + text), "a space makes it invalid");
  const bool hasFragment = text.find('#') != text.npos;
  check(URL::parse(text + (hasFragment ? "" : "#") + "%41?/:@").has_value(),
        "a fragment may follow");
  check(!URL::parse(text + "##"), "a second fragment may not");
  return 0;
}
