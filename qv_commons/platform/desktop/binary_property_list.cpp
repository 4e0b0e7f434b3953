#include "qv_commons/platform/desktop/binary_property_list.h"

#include <QString>
#include <cstdint>

namespace qv_commons::desktop {
namespace {

// A list is a magic word, objects, a table of their places, and a trailer. An object begins with a
// byte whose halves are its kind and its size; containers hold the numbers of other objects.
constexpr std::string_view kMagic = "bplist0";
constexpr std::size_t kTrailerSize = 32;

enum Kind : std::uint8_t { integer = 1, ascii = 5, utf16 = 6, dictionary = 13 };

struct Object {
  std::uint8_t kind;
  std::uint64_t size;   // bytes, units or entries, by the kind
  std::uint64_t place;  // of what follows
};

bool isText(const Object& object) {
  return object.kind == Kind::ascii || object.kind == Kind::utf16;
}

class BinaryList {
 public:
  explicit BinaryList(std::string_view bytes) : bytes_(bytes) {}

  std::optional<InfoTexts> topDictionary();

 private:
  bool readTrailer();
  std::optional<std::uint64_t> number(std::uint64_t place, std::uint64_t width) const;
  std::optional<Object> object(std::uint64_t index) const;
  std::optional<std::string> text(const Object& object) const;

  std::string_view bytes_;
  std::uint64_t placeWidth_ = 0;
  std::uint64_t indexWidth_ = 0;
  std::uint64_t objectCount_ = 0;
  std::uint64_t top_ = 0;
  std::uint64_t table_ = 0;
};

bool BinaryList::readTrailer() {
  if (bytes_.size() < kMagic.size() + 1 + kTrailerSize || !bytes_.starts_with(kMagic)) return false;
  const std::size_t trailer = bytes_.size() - kTrailerSize;
  placeWidth_ = *number(trailer + 6, 1);
  indexWidth_ = *number(trailer + 7, 1);
  objectCount_ = *number(trailer + 8, 8);
  top_ = *number(trailer + 16, 8);
  table_ = *number(trailer + 24, 8);
  return placeWidth_ >= 1 && placeWidth_ <= 8 && indexWidth_ >= 1 && indexWidth_ <= 8 &&
         table_ < trailer && objectCount_ <= (trailer - table_) / placeWidth_;
}

// Big-endian. std::nullopt beyond the end.
std::optional<std::uint64_t> BinaryList::number(std::uint64_t place, std::uint64_t width) const {
  if (place > bytes_.size() - width)
    return std::nullopt;  // the trailer alone is longer than a number
  std::uint64_t number = 0;
  for (const char byte : bytes_.substr(place, width)) {
    number = number << 8 | static_cast<unsigned char>(byte);
  }
  return number;
}

std::optional<Object> BinaryList::object(std::uint64_t index) const {
  if (index >= objectCount_) return std::nullopt;
  const std::uint64_t place = *number(table_ + index * placeWidth_, placeWidth_);
  const std::optional<std::uint64_t> marker = number(place, 1);
  if (!marker) return std::nullopt;
  Object object{static_cast<std::uint8_t>(*marker >> 4), *marker & 15, place + 1};
  if (object.kind < 4 || object.size != 15) return object;
  // A size of fifteen and more follows as an integer.
  const std::optional<std::uint64_t> wide = number(object.place, 1);
  if (!wide || *wide >> 4 != Kind::integer || (*wide & 15) > 3) return std::nullopt;
  const std::uint64_t width = std::uint64_t{1} << (*wide & 15);
  const std::optional<std::uint64_t> size = number(object.place + 1, width);
  if (!size) return std::nullopt;
  return Object{object.kind, *size, object.place + 1 + width};
}

std::optional<std::string> BinaryList::text(const Object& object) const {
  const std::uint64_t room = bytes_.size() - object.place;  // no object begins beyond the end
  if (object.kind == Kind::ascii && object.size <= room) {
    return std::string(bytes_.substr(object.place, object.size));
  }
  if (object.kind != Kind::utf16 || object.size > room / 2) return std::nullopt;
  QString text;
  for (std::uint64_t i = 0; i < object.size; ++i) {
    text += QChar(static_cast<char16_t>(*number(object.place + 2 * i, 2)));
  }
  return text.toStdString();
}

std::optional<InfoTexts> BinaryList::topDictionary() {
  if (!readTrailer()) return std::nullopt;
  const std::optional<Object> top = object(top_);
  if (!top || top->kind != Kind::dictionary) return std::nullopt;
  if (top->size > bytes_.size() / (2 * indexWidth_)) return std::nullopt;
  InfoTexts info;
  for (std::uint64_t i = 0; i < top->size; ++i) {
    const auto keyIndex = number(top->place + i * indexWidth_, indexWidth_);
    const auto valueIndex = number(top->place + (top->size + i) * indexWidth_, indexWidth_);
    if (!valueIndex) return std::nullopt;  // which lies behind the key's
    const std::optional<Object> keyObject = object(*keyIndex);
    const std::optional<std::string> key = keyObject ? text(*keyObject) : std::nullopt;
    const std::optional<Object> value = object(*valueIndex);
    if (!key || !value) return std::nullopt;
    info.erase(*key);  // the last value of a key counts
    if (!isText(*value)) continue;
    std::optional<std::string> found = text(*value);
    if (!found) return std::nullopt;
    info.emplace(*key, *std::move(found));
  }
  return info;
}

}  // namespace

std::optional<InfoTexts> parseBinaryInfoTexts(std::string_view bytes) {
  return BinaryList(bytes).topDictionary();
}

}  // namespace qv_commons::desktop
