// The grammar of a URL's parts, RFC 3986, appendix A: whether a piece of text is what it is to be.
//
//     bool valid = qv_commons::isURLHost("[2001:db8::7]");  // true
//
// Pure; any thread.
#pragma once

#include <string_view>

namespace qv_commons {

bool isURLScheme(std::string_view text);           // "https", not ""
bool isURLUserinfo(std::string_view text);         // "user:name", ""
bool isURLHost(std::string_view text);             // a name, "", or an IP literal in brackets
bool isURLPort(std::string_view text);             // "8042", ""
bool isURLPath(std::string_view text);             // "/over/there", "a@b", ""
bool isURLQueryOrFragment(std::string_view text);  // "name=ferret&a/b?c", ""

// The text inside of an IP literal's brackets, for example "2001:db8::192.0.2.16".
bool isIPv6Address(std::string_view text);

}  // namespace qv_commons
