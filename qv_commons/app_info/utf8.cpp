#include "qv_commons/app_info/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace qv_commons {
namespace {

// How many of the bytes from `at` on are ASCII, eight at a time.
std::size_t asciiRun(std::string_view bytes, std::size_t at) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  const std::size_t start = at;
  for (; bytes.size() - at >= sizeof(std::uint64_t); at += sizeof(std::uint64_t)) {
    std::uint64_t chunk;
    std::memcpy(&chunk, bytes.data() + at, sizeof(chunk));
    if ((chunk & kHighBits) != 0) break;
  }
  while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80) ++at;
  return at - start;
}

// What may follow a lead byte: how many bytes, and the bounds of the first of them, which keep out
// overlong forms, surrogates and what lies above U+10FFFF. No bytes: not a lead byte.
struct Continuation {
  std::size_t count;
  unsigned char lowest = 0x80;
  unsigned char highest = 0xBF;
};

Continuation continuationOf(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {1};
  if (lead == 0xE0) return {2, 0xA0, 0xBF};
  if (lead == 0xED) return {2, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {2};
  if (lead == 0xF0) return {3, 0x90, 0xBF};
  if (lead >= 0xF1 && lead <= 0xF3) return {3};
  if (lead == 0xF4) return {3, 0x80, 0x8F};
  return {0};
}

// The length of the character beyond ASCII at the start of `bytes`; 0 where it is malformed.
std::size_t characterLength(std::string_view bytes) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  const Continuation next = continuationOf(byteAt(0));
  if (next.count == 0 || bytes.size() <= next.count) return 0;
  if (byteAt(1) < next.lowest || byteAt(1) > next.highest) return 0;
  for (std::size_t at = 2; at <= next.count; ++at) {
    if ((byteAt(at) & 0xC0) != 0x80) return 0;
  }
  return next.count + 1;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  std::size_t at = asciiRun(bytes, 0);
  while (at < bytes.size()) {
    const std::size_t length = characterLength(bytes.substr(at));
    if (length == 0) return false;
    at += length;
    at += asciiRun(bytes, at);
  }
  return true;
}

}  // namespace qv_commons
