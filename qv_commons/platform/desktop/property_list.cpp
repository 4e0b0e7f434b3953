#include "qv_commons/platform/desktop/property_list.h"

#include <QXmlStreamReader>

#include "qv_commons/platform/desktop/binary_property_list.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

// Numbers beyond the signed ones count as their two's complement.
InfoDictionaryValue integerOf(const QString& text) {
  const bool isHexadecimal = text.startsWith("0x", Qt::CaseInsensitive);
  bool fits = false;
  const qlonglong number = text.toLongLong(&fits, isHexadecimal ? 16 : 10);
  if (fits) return static_cast<std::int64_t>(number);
  const qulonglong large = text.toULongLong(&fits, isHexadecimal ? 16 : 10);
  return fits ? InfoDictionaryValue(static_cast<std::int64_t>(large)) : OtherObject{};
}

InfoDictionaryValue realOf(const QString& text) {
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  return isNumber ? InfoDictionaryValue(number) : OtherObject{};
}

InfoDictionaryValue readValue(QXmlStreamReader& reader) {
  const QString kind = reader.name().toString();
  if (kind == "string") return toUtf8(reader.readElementText());
  if (kind == "integer") return integerOf(reader.readElementText().trimmed());
  if (kind == "real") return realOf(reader.readElementText().trimmed());
  reader.skipCurrentElement();
  if (kind == "true" || kind == "false") return kind == "true";
  return OtherObject{};
}

bool enter(QXmlStreamReader& reader, QStringView element) {
  return reader.readNextStartElement() && reader.name() == element;
}

std::optional<InfoDictionary> parseXml(std::string_view bytes) {
  QXmlStreamReader reader(
      QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (!enter(reader, u"plist") || !enter(reader, u"dict")) return std::nullopt;
  InfoDictionary info;
  while (reader.readNextStartElement()) {
    if (reader.name() != u"key") return std::nullopt;
    const std::string key = toUtf8(reader.readElementText());
    if (!reader.readNextStartElement()) return std::nullopt;
    info.insert_or_assign(key, readValue(reader));
  }
  while (!reader.atEnd()) reader.readNext();  // what is cut off is no list
  return reader.hasError() ? std::nullopt : std::optional(std::move(info));
}

}  // namespace

std::optional<InfoDictionary> parseInfoDictionary(std::string_view bytes) {
  return bytes.starts_with("bplist") ? parseBinaryInfoDictionary(bytes) : parseXml(bytes);
}

}  // namespace qv_commons::desktop
