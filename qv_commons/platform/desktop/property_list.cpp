#include "qv_commons/platform/desktop/property_list.h"

#include <QXmlStreamReader>

#include "qv_commons/platform/desktop/binary_property_list.h"
#include "qv_commons/platform/desktop/qt_text.h"

namespace qv_commons::desktop {
namespace {

bool enter(QXmlStreamReader& reader, QStringView element) {
  return reader.readNextStartElement() && reader.name() == element;
}

std::optional<InfoTexts> parseXml(std::string_view bytes) {
  QXmlStreamReader reader(
      QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (!enter(reader, u"plist") || !enter(reader, u"dict")) return std::nullopt;
  InfoTexts info;
  while (reader.readNextStartElement()) {
    if (reader.name() != u"key") return std::nullopt;
    const std::string key = toUtf8(reader.readElementText());
    if (!reader.readNextStartElement()) return std::nullopt;
    info.erase(key);  // the last value of a key counts
    if (reader.name() == u"string") {
      info.emplace(key, toUtf8(reader.readElementText()));
    } else {
      reader.skipCurrentElement();
    }
  }
  while (!reader.atEnd()) reader.readNext();  // what is cut off is no list
  return reader.hasError() ? std::nullopt : std::optional(std::move(info));
}

}  // namespace

std::optional<InfoTexts> parseInfoTexts(std::string_view bytes) {
  return bytes.starts_with("bplist") ? parseBinaryInfoTexts(bytes) : parseXml(bytes);
}

}  // namespace qv_commons::desktop
