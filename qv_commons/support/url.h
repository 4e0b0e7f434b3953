// An absolute address: a text that follows the grammar of RFC 3986.
//
//     std::optional<qv_commons::URL> url = qv_commons::URL::parse("https://example.com/a?b=c");
//     std::string address = url->text();  // "https://example.com/a?b=c"
//     bool refused = !qv_commons::URL::parse("https://example.com/a b");
//
// A URL does not change. Nothing is encoded, decoded or normalised, and two URLs are equal if their
// texts are. Any thread.
#pragma once

#include <optional>
#include <string>

#include "qv_commons/export.h"

namespace qv_commons {

class QV_COMMONS_EXPORT URL {
 public:
  // std::nullopt if `text` is not of the form "URI" of RFC 3986, appendix A: an empty text, a
  // space, a control or a non-ASCII character, a "%" without two hexadecimal digits, any of
  // `"<>\^`{|}`, brackets elsewhere than around an IP literal, a port with other characters than
  // digits. A relative reference ("g", "//host/path", "?query") is refused too: a URL here is
  // something to open, and there is no base to resolve it against.
  static std::optional<URL> parse(std::string text);

  const std::string& text() const { return text_; }

  friend bool operator==(const URL&, const URL&) = default;

 private:
  explicit URL(std::string text) : text_(std::move(text)) {}

  std::string text_;
};

}  // namespace qv_commons
