#include "qv_commons/support/support_mail.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "qv_commons/support/base64.h"
#include "qv_commons/support/decimal_text.h"

namespace qv_commons {
namespace {

// Copies the first characters and the last ones, as many each; those in the middle perhaps twice.
template <std::size_t count>
void copyBothEnds(char* out, std::string_view text) {
  std::memcpy(out, text.data(), count);
  std::memcpy(out + text.size() - count, text.data() + text.size() - count, count);
}

// Gives the end. Names, identifiers and versions are short, and a call that copies one takes longer
// than the copy.
inline char* write(char* out, std::string_view text) {
  const std::size_t size = text.size();
  if (size < 4 || size > 32) return std::copy(text.begin(), text.end(), out);
  if (size >= 16) {
    copyBothEnds<16>(out, text);
  } else if (size >= 8) {
    copyBothEnds<8>(out, text);
  } else {
    copyBothEnds<4>(out, text);
  }
  return out + size;
}

}  // namespace

std::string supportMailBody(const SupportMailInputs& inputs) {
  const std::string_view opening = inputs.openingMessage.value_or("Reason for contacting support:");
  const std::string_view metadata = inputs.additionalMetadata.value_or("");
  const std::string width = decimalText(inputs.screenSize.width);
  const std::string height = decimalText(inputs.screenSize.height);
  const auto forEachPiece = [&](auto take) {
    take(opening), take("\n\n\n\n\n\n\n\n\nApp ID: "), take(inputs.appId);
    take("\nDevice: "), take(inputs.localizedModel), take(" os:  "), take(inputs.systemVersion);
    take(" size: "), take(width), take("x"), take(height);
    take(" locale: "), take(inputs.preferredLanguage);
    take("\nApp version: "), take(inputs.appVersion);
    take(inputs.purchases.empty() ? "\nIAP: No " : "\nIAP: Yes ");
    for (const std::string& purchase : inputs.purchases) {
      if (&purchase != inputs.purchases.data()) take(", ");
      take(purchase);
    }
    take("\n"), take(metadata);
  };
  std::size_t size = 0;
  forEachPiece([&](std::string_view piece) { size += piece.size(); });
  std::string body(size, '\0');
  char* out = body.data();
  forEachPiece([&](std::string_view piece) { out = write(out, piece); });
  return body;
}

MailAttachment supportMailAttachment(std::string_view receipt) {
  return {base64Encoded(receipt), "Text/XML", "Receipt-Data.txt"};
}

}  // namespace qv_commons
