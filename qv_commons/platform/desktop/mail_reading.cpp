#include "qv_commons/platform/desktop/mail_reading.h"

#include <algorithm>
#include <array>
#include <gmime/gmime.h>
#include <unistd.h>

#include "qv_commons/platform/desktop/background_work.h"
#include "qv_commons/platform/desktop/gobject.h"

namespace qv_commons::desktop {
namespace {

Owned<GMimeMessage> parse(GMimeStream& stream) {
  g_mime_init();
  const Owned<GMimeParser> parser(g_mime_parser_new_with_stream(&stream));
  return Owned<GMimeMessage>(g_mime_parser_construct_message(parser.get(), nullptr));
}

std::string textOf(const char* text) {
  return text == nullptr ? "" : text;
}

// Piece by piece, so that no second copy is in the memory.
std::string contentOf(GMimePart& part) {
  GMimeDataWrapper* content = g_mime_part_get_content(&part);
  if (content == nullptr) return "";
  GMimeStream* encoded = g_mime_data_wrapper_get_stream(content);
  g_mime_stream_reset(encoded);
  const Owned<GMimeStream> stream(g_mime_stream_filter_new(encoded));
  const Owned<GMimeFilter> decoder(
      g_mime_filter_basic_new(g_mime_data_wrapper_get_encoding(content), FALSE));
  g_mime_stream_filter_add(GMIME_STREAM_FILTER(stream.get()), decoder.get());
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(std::max(gint64{0}, g_mime_stream_length(encoded))));
  std::array<char, 1 << 16> piece;
  while (!BackgroundWork::isStopRequested()) {
    const ssize_t length = g_mime_stream_read(stream.get(), piece.data(), piece.size());
    if (length <= 0) break;
    bytes.append(piece.data(), static_cast<std::size_t>(length));
  }
  return bytes;
}

// What headerText has encoded, to the byte, which it is not where GMime reads a NUL; std::nullopt
// for what somebody else wrote.
std::optional<std::string> decodedWords(std::string_view raw) {
  constexpr std::string_view kStart = "=?UTF-8?B?";
  std::string text;
  for (;;) {
    raw.remove_prefix(std::min(raw.find_first_not_of(" \n"), raw.size()));
    if (raw.empty()) return text;
    const std::size_t end = raw.find("?=");
    if (!raw.starts_with(kStart) || end == std::string_view::npos) return std::nullopt;
    const std::string word(raw.substr(kStart.size(), end - kStart.size()));
    gsize length = 0;
    const std::unique_ptr<guchar, decltype(&g_free)> bytes(g_base64_decode(word.c_str(), &length),
                                                           &g_free);
    text.append(reinterpret_cast<const char*>(bytes.get()), length);
    raw.remove_prefix(end + 2);
  }
}

// std::nullopt where there is no header of that name.
std::optional<std::string> headerOf(GMimeMessage& mail, const char* name) {
  GMimeHeaderList* headers = g_mime_object_get_header_list(GMIME_OBJECT(&mail));
  GMimeHeader* header = g_mime_header_list_get_header(headers, name);
  if (header == nullptr) return std::nullopt;
  if (std::optional<std::string> text = decodedWords(g_mime_header_get_raw_value(header))) {
    return text;
  }
  const std::unique_ptr<char, decltype(&g_free)> decoded(
      g_mime_utils_header_decode_text(nullptr, g_mime_header_get_value(header)), &g_free);
  return textOf(decoded.get());
}

std::string recipientsOf(GMimeMessage& mail) {
  if (std::optional<std::string> unfinished = headerOf(mail, kUnfinishedRecipients)) {
    return *std::move(unfinished);
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
  return mail == nullptr ? "" : headerOf(*mail, "Subject").value_or("");
}

std::optional<MailMessage> readMailMessage(int file) {
  const Owned<GMimeStream> stream(g_mime_stream_fs_new(::dup(file)));
  const Owned<GMimeMessage> mail = parse(*stream);
  if (mail == nullptr) return std::nullopt;
  MailMessage message;
  message.recipients = recipientsOf(*mail);
  message.subject = headerOf(*mail, "Subject").value_or("");
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
