// Between the library's texts, which are UTF-8, and Qt's.
#pragma once

#include <QString>
#include <QStringDecoder>
#include <string>
#include <string_view>

namespace qv_commons::desktop {

// QString's own way leaves out a mark U+FEFF at the beginning.
inline QString fromUtf8(std::string_view text) {
  using Flag = QStringDecoder::Flag;
  QStringDecoder decode(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
  return decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

inline std::string toUtf8(const QString& text) {
  return text.toStdString();
}

}  // namespace qv_commons::desktop
