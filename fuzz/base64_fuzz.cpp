// Base64 has the stated length and alphabet, and reading it back by the definition gives the bytes.
#include <string>

#include "qv_commons/support/base64.h"

#include "fuzz/fuzz.h"

namespace {

using qv_commons::fuzz::check;

unsigned valueOf(char character) {
  if (character >= 'A' && character <= 'Z') return static_cast<unsigned>(character - 'A');
  if (character >= 'a' && character <= 'z') return static_cast<unsigned>(character - 'a') + 26;
  if (character >= '0' && character <= '9') return static_cast<unsigned>(character - '0') + 52;
  check(character == '+' || character == '/', "only the alphabet is used");
  return character == '+' ? 62 : 63;
}

std::string decoded(std::string_view text) {
  std::string bytes;
  unsigned bits = 0;
  unsigned held = 0;
  for (const char character : text) {
    held = (held << 6 | valueOf(character)) & 0xFFFFFF;
    bits += 6;
    if (bits < 8) continue;
    bits -= 8;
    bytes += static_cast<char>(held >> bits & 0xFF);
  }
  check((held & ((1U << bits) - 1)) == 0, "bits left over are zero");
  return bytes;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = qv_commons::fuzz::textOf(data, size);
  const std::string text = qv_commons::base64Encoded(bytes);
  const std::size_t padding = (3 - size % 3) % 3;
  check(text.size() == (size + 2) / 3 * 4, "four characters for three bytes begun");
  check(text.ends_with(std::string_view("==").substr(0, padding)), "the padding fills up");
  check(decoded(std::string_view(text).substr(0, text.size() - padding)) == bytes, "reads back");
  return 0;
}
