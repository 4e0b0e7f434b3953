// The bytes of an e-mail from what the composer holds.
//
//     const BuiltMessage built = buildMailMessage({.sender = "ada@example.com",
//                                                  .recipients = "support@example.com",
//                                                  .subject = "Help",
//                                                  .body = "It broke.",
//                                                  .messageId = "1@example.com"},
//                                                 MailPurpose::send);
//
// Pure: the same input gives the same bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::desktop {

struct MailMessage {
  std::string sender = {};      // an address
  std::string recipients = {};  // addresses separated by commas, as a person types them
  std::string subject = {};
  std::string body = {};
  bool isHTML = false;
  std::vector<MailAttachment> attachments = {};
  std::int64_t date = 0;       // seconds since 1970-01-01 00:00:00 UTC
  std::string messageId = {};  // without angle brackets
};

// A message to send needs a recipient; one to keep may be unfinished.
enum class MailPurpose : std::uint8_t { send, keep };

// What an error is about.
enum class MailField : std::uint8_t { recipients, subject, other };

struct BuiltMessage {
  std::string bytes;  // with "\n" line ends, as mail programs on this system expect
  std::string error;  // a sentence for the user; empty on success, when `bytes` is not
  MailField field = MailField::other;
};

// The message, or why there is none: control characters in a header, or a recipient that is no
// address. Nothing is cut or corrected. The body decodes to its exact bytes; so does each
// attachment.
BuiltMessage buildMailMessage(const MailMessage& message, MailPurpose purpose);

}  // namespace qv_commons::desktop
