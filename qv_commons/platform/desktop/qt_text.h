// Between the library's texts, which are UTF-8, and Qt's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace qv_commons::desktop {

inline QString fromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string toUtf8(const QString& text) {
  return text.toStdString();
}

}  // namespace qv_commons::desktop
