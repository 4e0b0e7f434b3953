#include "qv_commons/platform/desktop/mail_reading.h"

#include <gmime/gmime.h>
#include <unistd.h>

namespace qv_commons::desktop {
namespace {

struct Unref {
  void operator()(void* object) const { g_object_unref(object); }
};

template <class T>
using Owned = std::unique_ptr<T, Unref>;

Owned<GMimeMessage> parse(GMimeStream& stream) {
  g_mime_init();
  const Owned<GMimeParser> parser(g_mime_parser_new_with_stream(&stream));
  return Owned<GMimeMessage>(g_mime_parser_construct_message(parser.get(), nullptr));
}

std::string textOf(const char* text) {
  return text == nullptr ? "" : text;
}

std::string contentOf(GMimePart& part) {
  GMimeDataWrapper* content = g_mime_part_get_content(&part);
  if (content == nullptr) return "";
  GByteArray* bytes = g_byte_array_new();
  const Owned<GMimeStream> stream(g_mime_stream_mem_new_with_byte_array(bytes));
  g_mime_data_wrapper_write_to_stream(content, stream.get());
  return {reinterpret_cast<const char*>(bytes->data), bytes->len};
}

std::string recipientsOf(GMimeMessage& mail) {
  const char* unfinished = g_mime_object_get_header(GMIME_OBJECT(&mail), kUnfinishedRecipients);
  if (unfinished != nullptr) {
    const std::unique_ptr<char, decltype(&g_free)> decoded(
        g_mime_utils_header_decode_text(nullptr, unfinished), &g_free);
    return decoded.get();
  }
  InternetAddressList* list = g_mime_message_get_addresses(&mail, GMIME_ADDRESS_TYPE_TO);
  const std::unique_ptr<char, decltype(&g_free)> text(
      list == nullptr ? nullptr : internet_address_list_to_string(list, nullptr, FALSE), &g_free);
  return textOf(text.get());
}

void addPart(MailMessage& message, GMimeObject& object) {
  if (!GMIME_IS_PART(&object)) return;
  GMimePart& part = *GMIME_PART(&object);
  GMimeContentType* type = g_mime_object_get_content_type(&object);
  if (g_mime_part_is_attachment(&part)) {
    const std::unique_ptr<char, decltype(&g_free)> mimeType(g_mime_content_type_get_mime_type(type),
                                                            &g_free);
    message.attachments.push_back(std::make_shared<const MailAttachment>(
        MailAttachment{contentOf(part), mimeType.get(), textOf(g_mime_part_get_filename(&part))}));
    return;
  }
  message.body = contentOf(part);
  message.isHTML = g_mime_content_type_is_type(type, "text", "html") != FALSE;
}

}  // namespace

std::string subjectOf(std::string_view beginning) {
  const Owned<GMimeStream> stream(
      g_mime_stream_mem_new_with_buffer(beginning.data(), beginning.size()));
  const Owned<GMimeMessage> mail = parse(*stream);
  return mail == nullptr ? "" : textOf(g_mime_message_get_subject(mail.get()));
}

std::optional<MailMessage> readMailMessage(int file) {
  const Owned<GMimeStream> stream(g_mime_stream_fs_new(::dup(file)));
  const Owned<GMimeMessage> mail = parse(*stream);
  if (mail == nullptr) return std::nullopt;
  MailMessage message;
  message.recipients = recipientsOf(*mail);
  message.subject = textOf(g_mime_message_get_subject(mail.get()));
  GMimeObject* content = g_mime_message_get_mime_part(mail.get());
  if (content == nullptr) return message;
  if (!GMIME_IS_MULTIPART(content)) {
    addPart(message, *content);
    return message;
  }
  GMimeMultipart* parts = GMIME_MULTIPART(content);
  for (int i = 0; i < g_mime_multipart_get_count(parts); ++i) {
    addPart(message, *g_mime_multipart_get_part(parts, i));
  }
  return message;
}

}  // namespace qv_commons::desktop
