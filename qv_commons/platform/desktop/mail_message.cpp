#include "qv_commons/platform/desktop/mail_message.h"

#include <gmime/gmime.h>
#include <memory>
#include <optional>
#include <string_view>

#include "qv_commons/platform/desktop/mail_addresses.h"

namespace qv_commons::desktop {
namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};

template <class T>
using Owned = std::unique_ptr<T, Unref>;

BuiltMessage refuse(MailField field, std::string error) {
  return {{}, std::move(error), field};
}

// The form of a type is that of RFC 2045, section 5.1.
bool isMimeType(std::string_view type) {
  const std::size_t slash = type.find('/');
  return slash != 0 && slash != std::string_view::npos && slash + 1 < type.size() &&
         type.find_first_of(" ()<>@,;:\\\"[]?=") == std::string_view::npos &&
         type.find('/', slash + 1) == std::string_view::npos && !hasControlCharacter(type);
}

std::optional<BuiltMessage> findFault(const MailMessage& message, MailPurpose purpose) {
  if (hasControlCharacter(message.recipients)) {
    return refuse(MailField::recipients,
                  "The address holds a line break or another control character. Please take it "
                  "out.");
  }
  const std::vector<std::string> addresses = splitAddresses(message.recipients);
  if (addresses.empty() && purpose == MailPurpose::send) {
    return refuse(MailField::recipients, "Please enter an address to send to.");
  }
  for (const std::string& address : addresses) {
    if (!isAddress(address)) {
      return refuse(MailField::recipients, "“" + address + "” is not an e-mail address.");
    }
  }
  if (hasControlCharacter(message.subject)) {
    return refuse(MailField::subject,
                  "The subject holds a line break or another control character. Please take it "
                  "out.");
  }
  if (!isAddress(message.sender)) {
    return refuse(MailField::other,
                  "The sender “" + message.sender + "” is not an e-mail address.");
  }
  for (const MailAttachment& attachment : message.attachments) {
    if (hasControlCharacter(attachment.fileName) || !isMimeType(attachment.mimeType)) {
      return refuse(MailField::other, "The attachment's name or type can't be sent.");
    }
  }
  return std::nullopt;
}

Owned<GMimePart> makePart(const std::string& mimeType, const std::string& bytes,
                          GMimeContentEncoding encoding) {
  const std::size_t slash = mimeType.find('/');
  Owned<GMimePart> part(g_mime_part_new_with_type(mimeType.substr(0, slash).c_str(),
                                                  mimeType.substr(slash + 1).c_str()));
  const Owned<GMimeStream> stream(g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size()));
  const Owned<GMimeDataWrapper> content(
      g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
  g_mime_part_set_content(part.get(), content.get());
  g_mime_part_set_content_encoding(part.get(), encoding);
  return part;
}

Owned<GMimePart> bodyPart(const MailMessage& message) {
  // Quoted-printable is readable as it stands, but takes every CR before LF for part of a line end.
  const bool hasCarriageReturn = message.body.find('\r') != std::string::npos;
  Owned<GMimePart> part = makePart(
      message.isHTML ? "text/html" : "text/plain", message.body,
      hasCarriageReturn ? GMIME_CONTENT_ENCODING_BASE64 : GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
  g_mime_object_set_content_type_parameter(GMIME_OBJECT(part.get()), "charset", "utf-8");
  return part;
}

Owned<GMimeObject> content(const MailMessage& message) {
  Owned<GMimePart> body = bodyPart(message);
  if (message.attachments.empty()) return Owned<GMimeObject>(GMIME_OBJECT(body.release()));
  Owned<GMimeMultipart> mixed(g_mime_multipart_new_with_subtype("mixed"));
  // Neither encoding of the parts can hold "=_".
  g_mime_multipart_set_boundary(mixed.get(), "=_qv_commons_part");
  g_mime_multipart_add(mixed.get(), GMIME_OBJECT(body.get()));
  for (const MailAttachment& attachment : message.attachments) {
    const Owned<GMimePart> part =
        makePart(attachment.mimeType, attachment.data, GMIME_CONTENT_ENCODING_BASE64);
    g_mime_object_set_disposition(GMIME_OBJECT(part.get()), GMIME_DISPOSITION_ATTACHMENT);
    g_mime_part_set_filename(part.get(), attachment.fileName.c_str());
    g_mime_multipart_add(mixed.get(), GMIME_OBJECT(part.get()));
  }
  return Owned<GMimeObject>(GMIME_OBJECT(mixed.release()));
}

void setHeaders(GMimeMessage& mail, const MailMessage& message) {
  g_mime_message_add_mailbox(&mail, GMIME_ADDRESS_TYPE_FROM, nullptr, message.sender.c_str());
  for (const std::string& address : splitAddresses(message.recipients)) {
    g_mime_message_add_mailbox(&mail, GMIME_ADDRESS_TYPE_TO, nullptr, address.c_str());
  }
  g_mime_message_set_subject(&mail, message.subject.c_str(), "utf-8");
  GDateTime* date = g_date_time_new_from_unix_utc(message.date);
  g_mime_message_set_date(&mail, date);
  g_date_time_unref(date);
  g_mime_message_set_message_id(&mail, message.messageId.c_str());
}

}  // namespace

BuiltMessage buildMailMessage(const MailMessage& message, MailPurpose purpose) {
  if (std::optional<BuiltMessage> fault = findFault(message, purpose)) return *fault;
  g_mime_init();
  const Owned<GMimeMessage> mail(g_mime_message_new(TRUE));
  setHeaders(*mail, message);
  g_mime_message_set_mime_part(mail.get(), content(message).get());
  const Owned<GMimeStream> stream(g_mime_stream_mem_new());
  g_mime_object_write_to_stream(GMIME_OBJECT(mail.get()), nullptr, stream.get());
  const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
  return {std::string(reinterpret_cast<const char*>(bytes->data), bytes->len), ""};
}

}  // namespace qv_commons::desktop
