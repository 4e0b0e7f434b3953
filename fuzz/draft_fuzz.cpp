// A message that is kept as a draft comes back as it was, and a draft of any bytes does no harm.
//
// An input is the length of the subject, the subject, and the body, which is the attachment too.

#include <memory>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "qv_commons/platform/desktop/file_descriptor.h"
#include "qv_commons/platform/desktop/mail_message.h"
#include "qv_commons/platform/desktop/mail_reading.h"

#include "fuzz/fuzz.h"

namespace {

using qv_commons::desktop::FileDescriptor;
using qv_commons::desktop::MailMessage;

std::optional<MailMessage> readBack(std::string_view draft) {
  const FileDescriptor file(::memfd_create("draft", MFD_CLOEXEC));
  qv_commons::fuzz::check(writeAll(file, draft), "there is memory for a draft");
  ::lseek(file.number(), 0, SEEK_SET);
  return qv_commons::desktop::readMailMessage(file.number());
}

void checkSame(const MailMessage& message) {
  using qv_commons::fuzz::check;
  std::string draft;
  writeMailMessage(message, [&](std::string_view piece) {
    draft += piece;
    return true;
  });
  const std::optional<MailMessage> read = readBack(draft);
  check(read.has_value(), "it is a message");
  check(read->subject == message.subject, "the subject comes back");
  check(read->body == message.body, "the body comes back");
  check(read->attachments.size() == message.attachments.size(), "the attachments come back");
  for (std::size_t i = 0; i < message.attachments.size(); ++i) {
    check(read->attachments[i]->data == message.attachments[i]->data, "with their bytes");
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  readBack(qv_commons::fuzz::textOf(data, size));
  if (size == 0) return 0;
  const std::size_t split = 1 + data[0] % size;
  const std::string subject(qv_commons::fuzz::textOf(data + 1, split - 1));
  const std::string body(qv_commons::fuzz::textOf(data + split, size - split));
  MailMessage message{.recipients = "a@example.com", .subject = subject, .body = body};
  checkSame(message);
  message.attachments.push_back(std::make_shared<const qv_commons::MailAttachment>(
      qv_commons::MailAttachment{body, "Text/XML", "Receipt-Data.txt"}));
  checkSame(message);
  return 0;
}
