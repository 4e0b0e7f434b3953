#include "qv_commons/platform/memory/utf16.h"

namespace qv_commons::memory {
namespace {

bool isHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

// What follows a lead byte, and the bits that the lead byte itself gives.
struct Lead {
  std::size_t following;
  char32_t bits;
};

Lead leadOf(unsigned char byte) {
  if (byte < 0x80) return {0, byte};
  if (byte < 0xE0) return {1, static_cast<char32_t>(byte & 0x1F)};
  if (byte < 0xF0) return {2, static_cast<char32_t>(byte & 0x0F)};
  return {3, static_cast<char32_t>(byte & 0x07)};
}

void append(std::string& text, char32_t code) {
  const auto tail = [&](int shift) {
    text.push_back(static_cast<char>(0x80 | ((code >> shift) & 0x3F)));
  };
  if (code < 0x80) {
    text.push_back(static_cast<char>(code));
  } else if (code < 0x800) {
    text.push_back(static_cast<char>(0xC0 | (code >> 6)));
    tail(0);
  } else if (code < 0x10000) {
    text.push_back(static_cast<char>(0xE0 | (code >> 12)));
    tail(6);
    tail(0);
  } else {
    text.push_back(static_cast<char>(0xF0 | (code >> 18)));
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace

std::u16string utf16Of(std::string_view text) {
  std::u16string units;
  for (std::size_t at = 0; at < text.size();) {
    auto [following, code] = leadOf(static_cast<unsigned char>(text[at++]));
    for (; following > 0 && at < text.size(); --following) {
      code = (code << 6) | (static_cast<unsigned char>(text[at++]) & 0x3F);
    }
    if (code < 0x10000) {
      units.push_back(static_cast<char16_t>(code));
    } else {
      units.push_back(static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10)));
      units.push_back(static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF)));
    }
  }
  return units;
}

std::string utf8Of(std::u16string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t unit = text[at];
    const bool paired =
        isHighSurrogate(unit) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
    if (paired) {
      const char32_t high = static_cast<char32_t>(unit - 0xD800) << 10;
      append(bytes, 0x10000 + high + (text[++at] - 0xDC00u));
    } else {
      append(bytes, isHighSurrogate(unit) || isLowSurrogate(unit) ? 0xFFFD : unit);
    }
  }
  return bytes;
}

}  // namespace qv_commons::memory
