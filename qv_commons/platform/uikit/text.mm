#import "qv_commons/platform/uikit/text.h"

#include <cstddef>

#include "qv_commons/app_info/utf8.h"

namespace qv_commons::uikit {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

// The text with U+FFFD for each byte that is not part of a character.
std::string replaceInvalidUtf8(std::string_view text) {
  constexpr std::size_t kLongestCharacter = 4;
  std::string result;
  while (!text.empty()) {
    std::size_t length = 1;
    while (length <= kLongestCharacter && !isUtf8(text.substr(0, length))) ++length;
    const bool isCharacter = length <= kLongestCharacter;
    result.append(isCharacter ? text.substr(0, length) : kReplacement);
    text.remove_prefix(isCharacter ? length : 1);
  }
  return result;
}

bool isHighSurrogate(char32_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char32_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendCharacter(std::string& target, char32_t character) {
  const auto byte = [&](char32_t bits) { target.push_back(static_cast<char>(bits)); };
  const auto rest = [&](int shift) { byte(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xC0 | (character >> 6));
    rest(0);
  } else if (character < 0x10000) {
    byte(0xE0 | (character >> 12));
    rest(6);
    rest(0);
  } else {
    byte(0xF0 | (character >> 18));
    rest(12);
    rest(6);
    rest(0);
  }
}

}  // namespace

NSString* toNSString(std::string_view utf8) {
  if (!isUtf8(utf8)) return toNSString(replaceInvalidUtf8(utf8));
  return [[NSString alloc] initWithBytes:utf8.data()
                                  length:utf8.size()
                                encoding:NSUTF8StringEncoding];
}

NSArray<NSString*>* toNSArray(const std::vector<std::string>& texts) {
  NSMutableArray<NSString*>* array = [NSMutableArray arrayWithCapacity:texts.size()];
  for (const std::string& text : texts) [array addObject:toNSString(text)];
  return array;
}

std::string toString(NSString* text) {
  std::u16string units(text.length, u'\0');
  [text getCharacters:reinterpret_cast<unichar*>(units.data()) range:NSMakeRange(0, units.size())];
  std::string utf8;
  utf8.reserve(units.size());
  for (std::size_t at = 0; at < units.size(); ++at) {
    const char32_t unit = units[at];
    if (isHighSurrogate(unit) && at + 1 < units.size() && isLowSurrogate(units[at + 1])) {
      ++at;
      appendCharacter(utf8, 0x10000 + ((unit - 0xD800) << 10) + (units[at] - 0xDC00U));
    } else if (isHighSurrogate(unit) || isLowSurrogate(unit)) {
      utf8.append(kReplacement);
    } else {
      appendCharacter(utf8, unit);
    }
  }
  return utf8;
}

std::optional<std::string> toOptionalString(NSString* text) {
  if (text == nil) return std::nullopt;
  return toString(text);
}

std::vector<std::string> toStrings(NSArray<NSString*>* texts) {
  std::vector<std::string> strings;
  strings.reserve(texts.count);
  for (NSString* text in texts) strings.push_back(toString(text));
  return strings;
}

}  // namespace qv_commons::uikit
