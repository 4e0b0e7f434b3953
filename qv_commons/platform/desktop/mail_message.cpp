#include "qv_commons/platform/desktop/mail_message.h"

#include <gmime/gmime.h>

#include "qv_commons/platform/desktop/gobject.h"
#include "qv_commons/platform/desktop/mail_addresses.h"
#include "qv_commons/platform/desktop/mail_encoding.h"

namespace qv_commons::desktop {
namespace {

// No encoding of the parts gives a line that begins so.
constexpr const char* kBoundary = "=_qv_commons_part";

// The form of a type is that of RFC 2045, section 5.1.
bool isMimeType(std::string_view type) {
  const std::size_t slash = type.find('/');
  return slash != 0 && slash != std::string_view::npos && slash + 1 < type.size() &&
         type.find_first_of(" ()<>@,;:\\\"[]?=") == std::string_view::npos &&
         type.find('/', slash + 1) == std::string_view::npos && !hasControlCharacter(type);
}

bool isSendable(const MailAttachment& attachment) {
  return !hasControlCharacter(attachment.fileName) && isMimeType(attachment.mimeType);
}

std::optional<MailProblem> findRecipientsProblem(const std::string& recipients) {
  const auto about = [](Sentence sentence) {
    return MailProblem{std::move(sentence), MailField::recipients};
  };
  if (hasControlCharacter(recipients)) {
    return about(Sentence(
        "The address holds a line break or another control character. Please take it out."));
  }
  const std::vector<std::string> addresses = splitAddresses(recipients);
  if (addresses.empty()) return about(Sentence("Please enter an address to send to."));
  for (const std::string& address : addresses) {
    if (parseMailbox(address)) continue;
    return about(Sentence("“%1” is not an e-mail address.", {address}));
  }
  return std::nullopt;
}

std::string headersOf(GMimeObject& object) {
  const std::unique_ptr<char, decltype(&g_free)> text(g_mime_object_get_headers(&object, nullptr),
                                                      &g_free);
  return text.get();
}

// Quoted-printable is readable as it stands, but takes every CR before LF for part of a line end.
bool isQuotable(const std::string& body) {
  return body.find('\r') == std::string::npos;
}

Owned<GMimePart> makePart(const std::string& mimeType, GMimeContentEncoding encoding) {
  const std::size_t slash = mimeType.find('/');
  Owned<GMimePart> part(g_mime_part_new_with_type(mimeType.substr(0, slash).c_str(),
                                                  mimeType.substr(slash + 1).c_str()));
  g_mime_part_set_content_encoding(part.get(), encoding);
  return part;
}

Owned<GMimePart> makeTextPart(const MailMessage& message) {
  Owned<GMimePart> part = makePart(message.isHTML ? "text/html" : "text/plain",
                                   isQuotable(message.body) ? GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE
                                                            : GMIME_CONTENT_ENCODING_BASE64);
  g_mime_object_set_content_type_parameter(GMIME_OBJECT(part.get()), "charset", "utf-8");
  return part;
}

std::string attachmentHeaders(const MailAttachment& attachment) {
  // A host's own mistake must not cost the user a draft.
  const bool sendable = isSendable(attachment);
  const Owned<GMimePart> part = makePart(
      sendable ? attachment.mimeType : "application/octet-stream", GMIME_CONTENT_ENCODING_BASE64);
  g_mime_object_set_disposition(GMIME_OBJECT(part.get()), GMIME_DISPOSITION_ATTACHMENT);
  g_mime_part_set_filename(part.get(), sendable ? attachment.fileName.c_str() : "attachment");
  return headersOf(*GMIME_OBJECT(part.get()));
}

void setText(GMimeMessage& mail, const char* name, const std::string& value) {
  GMimeHeaderList* headers = g_mime_object_get_header_list(GMIME_OBJECT(&mail));
  g_mime_header_list_append(headers, name, "", nullptr);
  GMimeHeader* header = g_mime_header_list_get_header(headers, name);
  const std::string raw = std::string(" ").append(headerText(value)).append("\n");
  g_mime_header_set_raw_value(header, raw.c_str());
}

void setRecipients(GMimeMessage& mail, const std::string& recipients) {
  const bool finished = recipients.empty() || !findRecipientsProblem(recipients);
  if (!finished) return setText(mail, kUnfinishedRecipients, recipients);
  for (const std::string& text : splitAddresses(recipients)) {
    const Mailbox mailbox = *parseMailbox(text);
    g_mime_message_add_mailbox(&mail, GMIME_ADDRESS_TYPE_TO,
                               mailbox.name.empty() ? nullptr : mailbox.name.c_str(),
                               mailbox.address.c_str());
  }
}

void setHeaders(GMimeMessage& mail, const MailMessage& message) {
  GDateTime* date = g_date_time_new_from_unix_utc(message.date);
  g_mime_message_set_date(&mail, date);
  g_date_time_unref(date);
  if (isAddress(message.sender)) {
    g_mime_message_add_mailbox(&mail, GMIME_ADDRESS_TYPE_FROM, nullptr, message.sender.c_str());
  }
  setText(mail, "Subject", message.subject);
  setRecipients(mail, message.recipients);
  g_mime_message_set_message_id(&mail, message.messageId.c_str());
}

// The headers of the whole, those of `content` among them, and the line that ends them.
std::string messageHeaders(const MailMessage& message, GMimeObject& content) {
  const Owned<GMimeMessage> mail(g_mime_message_new(FALSE));
  setHeaders(*mail, message);
  g_mime_message_set_mime_part(mail.get(), &content);
  return headersOf(*GMIME_OBJECT(mail.get())) + "\n";
}

bool writeBody(const MailMessage& message, const MailSink& sink) {
  if (!isQuotable(message.body)) return writeBase64Lines(message.body, sink);
  return sink(quotedPrintable(message.body));
}

bool writeParts(const MailMessage& message, GMimePart& text, const MailSink& sink) {
  const std::string boundary = std::string("--") + kBoundary;
  if (!sink(boundary + "\n" + headersOf(*GMIME_OBJECT(&text)) + "\n")) return false;
  if (!writeBody(message, sink)) return false;
  for (const SharedAttachment& attachment : message.attachments) {
    if (!sink("\n" + boundary + "\n" + attachmentHeaders(*attachment) + "\n")) return false;
    if (!writeBase64Lines(attachment->data, sink)) return false;
  }
  return sink("\n" + boundary + "--\n");
}

}  // namespace

std::optional<MailProblem> findProblem(const MailMessage& message) {
  if (auto problem = findRecipientsProblem(message.recipients)) return problem;
  if (hasControlCharacter(message.subject)) {
    return MailProblem{
        Sentence(
            "The subject holds a line break or another control character. Please take it out."),
        MailField::subject};
  }
  for (const SharedAttachment& attachment : message.attachments) {
    if (!isSendable(*attachment)) {
      return MailProblem{Sentence("The attachment's name or type can't be sent."),
                         MailField::other};
    }
  }
  return std::nullopt;
}

bool writeMailMessage(const MailMessage& message, const MailSink& sink) {
  g_mime_init();
  const Owned<GMimePart> text = makeTextPart(message);
  if (message.attachments.empty()) {
    if (!sink(messageHeaders(message, *GMIME_OBJECT(text.get())))) return false;
    if (!writeBody(message, sink)) return false;
    // The mail program would end the last line; a soft line break says that the text doesn't.
    const bool isOpen = !message.body.empty() && message.body.back() != '\n';
    return !isOpen || !isQuotable(message.body) || sink("=\n");
  }
  const Owned<GMimeMultipart> mixed(g_mime_multipart_new_with_subtype("mixed"));
  g_mime_multipart_set_boundary(mixed.get(), kBoundary);
  if (!sink(messageHeaders(message, *GMIME_OBJECT(mixed.get())))) return false;
  return writeParts(message, *text, sink);
}

std::size_t estimateMailSize(const MailMessage& message) {
  std::size_t size = 1000 + message.body.size();
  for (const SharedAttachment& attachment : message.attachments) {
    size += 1000 + attachment->data.size() / 57 * 77;
  }
  return size;
}

}  // namespace qv_commons::desktop
