#include "qv_commons/support/support_mail.h"

#include <array>

#include "qv_commons/support/base64.h"
#include "qv_commons/support/decimal_text.h"

namespace qv_commons {
namespace {

constexpr std::string_view kSeparator = ", ";

std::size_t joinedSize(std::span<const std::string> texts) {
  std::size_t size = texts.empty() ? 0 : (texts.size() - 1) * kSeparator.size();
  for (const std::string& text : texts) size += text.size();
  return size;
}

void appendJoined(std::string& target, std::span<const std::string> texts) {
  for (const std::string& text : texts) {
    if (&text != texts.data()) target.append(kSeparator);
    target.append(text);
  }
}

}  // namespace

std::string supportMailBody(const SupportMailInputs& inputs) {
  const DecimalText width(inputs.screenSize.width);
  const DecimalText height(inputs.screenSize.height);
  const std::array<std::string_view, 18> beforePurchases = {
      inputs.openingMessage.value_or("Reason for contacting support:"),
      "\n\n\n\n\n\n\n\n\nApp ID: ",
      inputs.appId,
      "\nDevice: ",
      inputs.localizedModel,
      " os:  ",
      inputs.systemVersion,
      " size: ",
      width.view(),
      "x",
      height.view(),
      " locale: ",
      inputs.preferredLanguage,
      "\nApp version: ",
      inputs.appVersion,
      "\nIAP: ",
      inputs.purchases.empty() ? "No" : "Yes",
      " "};
  const std::string_view metadata = inputs.additionalMetadata.value_or("");

  std::size_t size = joinedSize(inputs.purchases) + 1 + metadata.size();
  for (std::string_view piece : beforePurchases) size += piece.size();
  std::string body;
  body.reserve(size);
  for (std::string_view piece : beforePurchases) body.append(piece);
  appendJoined(body, inputs.purchases);
  body.append("\n").append(metadata);
  return body;
}

MailAttachment supportMailAttachment(std::string_view receipt) {
  return {base64Encoded(receipt), "Text/XML", "Receipt-Data.txt"};
}

}  // namespace qv_commons
