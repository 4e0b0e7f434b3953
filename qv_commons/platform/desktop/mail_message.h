// The bytes of an e-mail from what the composer holds.
//
//     const MailMessage message{.sender = "ada@example.com",
//                               .recipients = "support@example.com",
//                               .subject = "Help",
//                               .body = "It broke.",
//                               .messageId = "1@example.com"};
//     if (const auto problem = findProblem(message)) return show(words(problem->sentence));
//     writeMailMessage(message, [&](std::string_view bytes) { return file.write(bytes); });
//
// Pure: the same input gives the same bytes. Any thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "qv_commons/platform/desktop/outcome.h"
#include "qv_commons/platform/mail_composer.h"

namespace qv_commons::desktop {

using SharedAttachment = std::shared_ptr<const MailAttachment>;

struct MailMessage {
  std::string sender = {};      // what is no address leaves the header From to the mail program
  std::string recipients = {};  // mailboxes separated by commas, as a person types them
  std::string subject = {};
  std::string body = {};
  bool isHTML = false;
  std::vector<SharedAttachment> attachments = {};
  std::int64_t date = 0;       // seconds since 1970-01-01 00:00:00 UTC
  std::string messageId = {};  // without angle brackets
};

// What a problem is about.
enum class MailField : std::uint8_t { recipients, subject, other };

struct MailProblem {
  Sentence sentence;
  MailField field = MailField::other;
};

// Why the message can't be sent: no recipient, one that is no address, or control characters in a
// header. As a draft it can be kept all the same.
std::optional<MailProblem> findProblem(const MailMessage& message);

// Takes the bytes piece by piece, with "\n" line ends, as mail programs on this system expect;
// false stops.
using MailSink = std::function<bool(std::string_view)>;

// Nothing is cut or corrected: subject, body and attachments decode to their exact bytes.
// Recipients that are no addresses yet are kept in the header kUnfinishedRecipients. False if it
// was stopped.
bool writeMailMessage(const MailMessage& message, const MailSink& sink);

inline constexpr const char* kUnfinishedRecipients = "X-Unfinished-Recipients";

// About how many bytes that gives.
std::size_t estimateMailSize(const MailMessage& message);

}  // namespace qv_commons::desktop
