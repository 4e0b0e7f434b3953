// Base64 has the stated length and alphabet, and reading it back by the definition gives the bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "qv_commons/support/base64.h"

namespace {

unsigned valueOf(char character) {
  if (character >= 'A' && character <= 'Z') return static_cast<unsigned>(character - 'A');
  if (character >= 'a' && character <= 'z') return static_cast<unsigned>(character - 'a') + 26;
  if (character >= '0' && character <= '9') return static_cast<unsigned>(character - '0') + 52;
  if (character == '+') return 62;
  if (character == '/') return 63;
  std::abort();
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
  if ((held & ((1U << bits) - 1)) != 0) std::abort();  // bits left over are zero
  return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string text = qv_commons::base64Encoded(bytes);
  if (text.size() != (size + 2) / 3 * 4) std::abort();
  const std::size_t padding = (3 - size % 3) % 3;
  if (text.find('=') != (padding == 0 ? std::string::npos : text.size() - padding)) std::abort();
  if (decoded(std::string_view(text).substr(0, text.size() - padding)) != bytes) std::abort();
  return 0;
}
