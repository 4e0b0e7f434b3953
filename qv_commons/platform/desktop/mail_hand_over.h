// Hands a message over to the desktop, whose own mail program shows it for the user to finish.
//
//     const Result<HandedMail> mail = makeHandedMail(message, folder, "1", isStopped);
//     if (!mail.value) return showNotice(words(*mail.failure));
//     attempt = std::make_unique<PortalMail>(*mail.value, window, done);
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <functional>
#include <string>

#include "qv_commons/platform/desktop/mail_message.h"
#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

struct HandedMail {
  QStringList addresses;  // without names, which a link of the scheme mailto can't carry
  QString subject;
  QString body;
  QStringList files;  // to be attached, by their paths
};

// Writes the message's attachments to folders of their own in `folder`, whose names begin with
// `name`, and tells `took` how many bytes it has written. Desktops hand a message to the mail
// program as a link, in one argument of at most 128 KB: a body that is too long for that, or that
// is no text (NUL, bytes that are not UTF-8, HTML), goes as an attachment too, to the byte, and the
// message says so. Any thread.
Result<HandedMail> makeHandedMail(const MailMessage& message, const std::string& folder,
                                  const std::string& name, const std::atomic<bool>& isStopped,
                                  const std::function<void(std::size_t)>& took = nullptr);

// Takes away the files in `folder` that are older than a week. Mail programs read an attachment
// when it is sent, and nobody tells when that is.
void removeOldHandedMail(const std::string& folder);

// An attempt to have the mail program open, under way. Destroying it gives it up.
class MailHandOver {
 public:
  enum class Outcome : std::uint8_t {
    opened,   // the message is in the mail program, unsent
    refused,  // by the user, who was asked which program to open
    failed
  };

  // Called once, from the event loop; `failure` says why it has failed. Must not destroy the
  // attempt.
  using Done = std::function<void(Outcome outcome, const Failure& failure)>;

  MailHandOver() = default;
  virtual ~MailHandOver() = default;
  MailHandOver(const MailHandOver&) = delete;
  MailHandOver& operator=(const MailHandOver&) = delete;
};

}  // namespace qv_commons::desktop
