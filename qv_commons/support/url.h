// An absolute address, parsed strictly by RFC 3986.
//
//     std::optional<qv_commons::URL> url = qv_commons::URL::parse("https://example.com/a?b=c");
//     bool same = url->host() == "example.com" && url->path() == "/a" && url->query() == "b=c";
//     bool refused = !qv_commons::URL::parse("https://example.com/a b");
//
// A URL is a text that follows the grammar, and does not change. Nothing is encoded, decoded or
// normalised: every part is the piece of the text that it is, and two URLs are equal where their
// texts are. Any thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qv_commons {

class URL {
 public:
  // Nothing where `text` is not of the form "URI" of RFC 3986, appendix A: an empty text, a space,
  // a control or a non-ASCII character, a "%" without two hexadecimal digits, any of `"<>\^`{|}`,
  // brackets elsewhere than around an IP literal, a port with other characters than digits. A
  // relative reference ("g", "//host/path", "?query") is refused too: a URL here is something to
  // open, and there is no base to resolve it against.
  static std::optional<URL> parse(std::string text);

  const std::string& text() const { return text_; }

  // The parts without their delimiters, as views that live as long as this object. A part that is
  // absent gives nothing, one that is there and empty gives "": "file:///a" has the host "",
  // "mailto:a@b" has none.
  std::string_view scheme() const;                   // "https"; never empty
  std::optional<std::string_view> userinfo() const;  // "user" of "ftp://user@host/"
  std::optional<std::string_view> host() const;      // "example.com", "192.0.2.16", "[2001:db8::7]"
  std::optional<std::string_view> port() const;      // "8042"; digits or ""
  std::string_view path() const;                     // "/app/id123", or ""
  std::optional<std::string_view> query() const;     // "mt=8&action=write-review"
  std::optional<std::string_view> fragment() const;  // "nose" of "foo:bar#nose"

  friend bool operator==(const URL&, const URL&) = default;

 private:
  explicit URL(std::string text) : text_(std::move(text)) {}

  std::string text_;
};

}  // namespace qv_commons
