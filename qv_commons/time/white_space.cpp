#include "qv_commons/time/white_space.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace qv_commons::white_space {
namespace {

// All white space beyond ASCII. No encoded character ends in another one, so that looking at the
// last bytes of a text is as good as looking at its last character.
constexpr std::array<std::string_view, 19> kWide = {
    "\u0085", "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003",
    "\u2004", "\u2005", "\u2006", "\u2007", "\u2008", "\u2009", "\u200A",
    "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};

// The bytes of the white space that `text`, which is not empty, begins or ends with; else 0.
std::size_t sizeAtStart(std::string_view text) {
  if (isASCII(text.front())) return isPlain(text.front()) ? 1 : 0;
  const auto found = std::find_if(kWide.begin(), kWide.end(),
                                  [&](std::string_view wide) { return text.starts_with(wide); });
  return found == kWide.end() ? 0 : found->size();
}

std::size_t sizeAtEnd(std::string_view text) {
  if (isASCII(text.back())) return isPlain(text.back()) ? 1 : 0;
  const auto found = std::find_if(kWide.begin(), kWide.end(),
                                  [&](std::string_view wide) { return text.ends_with(wide); });
  return found == kWide.end() ? 0 : found->size();
}

}  // namespace

std::string_view trimmedOfAll(std::string_view text) {
  while (!text.empty()) {
    const std::size_t size = sizeAtStart(text);
    if (size == 0) break;
    text.remove_prefix(size);
  }
  while (!text.empty()) {
    const std::size_t size = sizeAtEnd(text);
    if (size == 0) break;
    text.remove_suffix(size);
  }
  return text;
}

}  // namespace qv_commons::white_space
