#include "qv_commons/app_info/utf8.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace qv_commons {
namespace {

// A row of the standard's table 3-7, for characters beyond ASCII: the bytes that may come first,
// those that may come second then, and how many follow the first. The others are 80 to BF.
struct Row {
  unsigned char firstLowest, firstHighest;
  unsigned char secondLowest, secondHighest;
  std::size_t following;
};

constexpr Row kTable[] = {{0xC2, 0xDF, 0x80, 0xBF, 1}, {0xE0, 0xE0, 0xA0, 0xBF, 2},
                          {0xE1, 0xEC, 0x80, 0xBF, 2}, {0xED, 0xED, 0x80, 0x9F, 2},
                          {0xEE, 0xEF, 0x80, 0xBF, 2}, {0xF0, 0xF0, 0x90, 0xBF, 3},
                          {0xF1, 0xF3, 0x80, 0xBF, 3}, {0xF4, 0xF4, 0x80, 0x8F, 3}};

// The length of the character beyond ASCII at the start of `bytes`; 0 if it is malformed.
std::size_t characterLength(std::string_view bytes) {
  const auto isWithin = [&](std::size_t at, unsigned char lowest, unsigned char highest) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    return lowest <= byte && byte <= highest;
  };
  const Row* const row = std::find_if(std::begin(kTable), std::end(kTable), [&](const Row& one) {
    return isWithin(0, one.firstLowest, one.firstHighest);
  });
  if (row == std::end(kTable) || bytes.size() <= row->following) return 0;
  for (std::size_t at = 1; at <= row->following; ++at) {
    const bool valid =
        at == 1 ? isWithin(at, row->secondLowest, row->secondHighest) : isWithin(at, 0x80, 0xBF);
    if (!valid) return 0;
  }
  return row->following + 1;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const bool isASCII = static_cast<unsigned char>(bytes.front()) < 0x80;
    const std::size_t length = isASCII ? 1 : characterLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

}  // namespace qv_commons
