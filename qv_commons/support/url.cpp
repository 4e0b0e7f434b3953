#include "qv_commons/support/url.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "qv_commons/support/url_grammar.h"

namespace qv_commons {
namespace {

struct Parts {
  std::string_view scheme;  // empty where there is none, which no valid scheme is
  std::optional<std::string_view> userinfo;
  std::optional<std::string_view> host;
  std::optional<std::string_view> port;
  std::string_view path;
  std::optional<std::string_view> query;
  std::optional<std::string_view> fragment;
};

// Takes what follows the first `delimiter` off `text`; nothing where there is no delimiter.
std::optional<std::string_view> takeAfter(std::string_view& text, char delimiter) {
  const std::size_t at = text.find(delimiter);
  if (at == std::string_view::npos) return std::nullopt;
  const std::string_view after = text.substr(at + 1);
  text = text.substr(0, at);
  return after;
}

void splitAuthority(std::string_view authority, Parts& parts) {
  std::string_view host = authority;
  if (const auto afterUserinfo = takeAfter(host, '@')) {
    parts.userinfo = std::exchange(host, *afterUserinfo);
  }
  const std::size_t literalEnd = host.find(']');  // an IP literal has colons of its own
  const std::size_t colon = host.find(':', literalEnd == std::string_view::npos ? 0 : literalEnd);
  parts.host = host.substr(0, colon);
  if (colon != std::string_view::npos) parts.port = host.substr(colon + 1);
}

// Finds the parts as RFC 3986, appendix B, does. Any text can be split; where it does not follow
// the grammar, at least one part does not.
Parts split(std::string_view text) {
  Parts parts;
  parts.fragment = takeAfter(text, '#');
  parts.query = takeAfter(text, '?');
  std::string_view scheme = text;
  std::string_view rest = text;
  if (const auto afterScheme = takeAfter(scheme, ':')) {
    parts.scheme = scheme;
    rest = *afterScheme;
  }
  if (rest.starts_with("//")) {
    rest.remove_prefix(2);
    const std::size_t slash = std::min(rest.find('/'), rest.size());
    splitAuthority(rest.substr(0, slash), parts);
    rest.remove_prefix(slash);
  }
  parts.path = rest;
  return parts;
}

}  // namespace

std::optional<URL> URL::parse(std::string text) {
  const Parts parts = split(text);
  const bool valid = isURLScheme(parts.scheme) && isURLUserinfo(parts.userinfo.value_or("")) &&
                     isURLHost(parts.host.value_or("")) && isURLPort(parts.port.value_or("")) &&
                     isURLPath(parts.path) && isURLQueryOrFragment(parts.query.value_or("")) &&
                     isURLQueryOrFragment(parts.fragment.value_or(""));
  if (!valid) return std::nullopt;
  return URL(std::move(text));
}

std::string_view URL::scheme() const {
  return split(text_).scheme;
}

std::optional<std::string_view> URL::userinfo() const {
  return split(text_).userinfo;
}

std::optional<std::string_view> URL::host() const {
  return split(text_).host;
}

std::optional<std::string_view> URL::port() const {
  return split(text_).port;
}

std::string_view URL::path() const {
  return split(text_).path;
}

std::optional<std::string_view> URL::query() const {
  return split(text_).query;
}

std::optional<std::string_view> URL::fragment() const {
  return split(text_).fragment;
}

}  // namespace qv_commons
