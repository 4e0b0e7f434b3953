#include "qv_commons/support/support_mail.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "qv_commons/support/base64.h"
#include "qv_commons/support/decimal_text.h"

namespace qv_commons {
namespace {

constexpr std::string_view kSeparator = ", ";

// The texts with separators between them.
struct Joined {
  std::span<const std::string> texts;
};

std::size_t sizeOf(std::string_view text) {
  return text.size();
}

std::size_t sizeOf(Joined list) {
  std::size_t size = list.texts.empty() ? 0 : (list.texts.size() - 1) * kSeparator.size();
  for (const std::string& text : list.texts) size += text.size();
  return size;
}

// Each of these writes at `out` and gives the end.

// The first characters and the last ones, as many each; those in the middle perhaps twice.
template <std::size_t count>
char* writeBothEnds(char* out, std::string_view text) {
  std::memcpy(out, text.data(), count);
  out += text.size();
  std::memcpy(out - count, text.data() + text.size() - count, count);
  return out;
}

// Names, identifiers and versions are short, and a call that copies one takes longer than the copy.
inline char* write(char* out, std::string_view text) {
  if (text.size() >= 4 && text.size() <= 32) {
    if (text.size() >= 16) return writeBothEnds<16>(out, text);
    return text.size() >= 8 ? writeBothEnds<8>(out, text) : writeBothEnds<4>(out, text);
  }
  return std::copy(text.begin(), text.end(), out);
}

char* write(char* out, Joined list) {
  for (const std::string& text : list.texts) {
    if (&text != list.texts.data()) out = write(out, kSeparator);
    out = write(out, text);
  }
  return out;
}

// One after the other, in one allocation. Where a piece is a literal, the compiler knows its size
// and copies it without a call.
template <class... Pieces>
std::string concatenated(const Pieces&... pieces) {
  std::string text((sizeOf(pieces) + ...), '\0');
  char* out = text.data();
  ((out = write(out, pieces)), ...);
  return text;
}

}  // namespace

std::string supportMailBody(const SupportMailInputs& inputs) {
  const std::string_view question = "Reason for contacting support:";
  const std::string width = decimalText(inputs.screenSize.width);
  const std::string height = decimalText(inputs.screenSize.height);
  return concatenated(
      inputs.openingMessage.value_or(question), "\n\n\n\n\n\n\n\n\nApp ID: ", inputs.appId,
      "\nDevice: ", inputs.localizedModel, " os:  ", inputs.systemVersion, " size: ", width, "x",
      height, " locale: ", inputs.preferredLanguage, "\nApp version: ", inputs.appVersion,
      "\nIAP: ", inputs.purchases.empty() ? "No " : "Yes ", Joined{inputs.purchases}, "\n",
      inputs.additionalMetadata.value_or(""));
}

MailAttachment supportMailAttachment(std::string_view receipt) {
  return {base64Encoded(receipt), "Text/XML", "Receipt-Data.txt"};
}

}  // namespace qv_commons
