#include "qv_commons/time/white_space.h"

#include <cstddef>

namespace qv_commons {
namespace {

// All white space beyond ASCII. No encoded character ends in another one, so looking at the last
// bytes of a text is as good as looking at its last character.
constexpr const char kWide[][4] = {"\u0085", "\u00A0", "\u1680", "\u2000", "\u2001",
                                   "\u2002", "\u2003", "\u2004", "\u2005", "\u2006",
                                   "\u2007", "\u2008", "\u2009", "\u200A", "\u2028",
                                   "\u2029", "\u202F", "\u205F", "\u3000"};

// The bytes of the white space at that end of `text`; 0 if there is none.
std::size_t spaceSize(std::string_view text, bool atEnd) {
  if (text.empty()) return 0;
  const char outermost = atEnd ? text.back() : text.front();
  const bool isASCII = static_cast<unsigned char>(outermost) < 0x80;
  if (isASCII) return outermost == ' ' || (outermost >= '\t' && outermost <= '\r') ? 1 : 0;
  for (const std::string_view wide : kWide) {
    if (atEnd ? text.ends_with(wide) : text.starts_with(wide)) return wide.size();
  }
  return 0;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  while (const std::size_t size = spaceSize(text, false)) text.remove_prefix(size);
  while (const std::size_t size = spaceSize(text, true)) text.remove_suffix(size);
  return text;
}

}  // namespace qv_commons
