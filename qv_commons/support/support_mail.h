// The texts and bytes of the support e-mail, as pure functions of their inputs.
//
//     qv_commons::SupportMailInputs inputs;
//     inputs.appId = "notesapp";
//     inputs.appVersion = "2.4.1(317)";
//     std::string body = qv_commons::supportMailBody(inputs);
//     qv_commons::MailAttachment file = qv_commons::supportMailAttachment("receipt bytes");
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "qv_commons/platform/device.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons {

// What the body says. The texts need to live only as long as the call.
struct SupportMailInputs {
  std::optional<std::string_view> openingMessage;      // absent: "Reason for contacting support:"
  std::string_view appId;                              // "" if the bundle has no identifier
  std::string_view localizedModel;                     // "iPhone"
  std::string_view systemVersion;                      // "14.4"
  Size screenSize;                                     // in points; 375 by 667 reads "375.0x667.0"
  std::string_view preferredLanguage;                  // "en-US", or "" if there is none
  std::string_view appVersion;                         // "2.4.1(317)"
  std::span<const std::string> purchases;              // listed in this order
  std::optional<std::string_view> additionalMetadata;  // the end of the body, verbatim
};

// The message's body: the opening line, eight empty lines, then what the app and the device are.
// Every text goes in as it is, line ends and NUL included. One allocation, that of the result, if
// the screen's size has short figures. Any thread.
std::string supportMailBody(const SupportMailInputs& inputs);

// The receipt's bytes as base64 text, to be attached as "Receipt-Data.txt" of the type "Text/XML";
// an empty receipt gives an empty text. Allocates no more memory than the text takes. Any thread.
MailAttachment supportMailAttachment(std::string_view receipt);

}  // namespace qv_commons
