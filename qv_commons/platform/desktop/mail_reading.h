// What a composer needs of an e-mail that was written before.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "qv_commons/platform/desktop/mail_message.h"

namespace qv_commons::desktop {

// Of a message, or of its beginning; "" where there is none.
std::string subjectOf(std::string_view beginning);

// The recipients, subject, body and attachments of the message in an open file; std::nullopt if it
// is no message. Any thread.
std::optional<MailMessage> readMailMessage(int file);

}  // namespace qv_commons::desktop
