// The host app's command line.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "qv_commons/platform/user_interface_style.h"

namespace host {

struct Options {
  QString bundleDirectory;               // --bundle
  QString dataDirectory;                 // --data; empty: the user's
  std::optional<QString> tourDirectory;  // --tour
  std::optional<QString> scene;          // --scene: the part of the tour that this process plays
  std::optional<QDate> birthDate;        // --birth-date
  std::int64_t minimumAge = 16;          // --minimum-age
  qv_commons::UserInterfaceStyle appearance = qv_commons::UserInterfaceStyle::unspecified;
  int systemVersion = 17;  // --system-version
  QString language;        // --language; empty: the user's
};

// Nothing where the arguments asked for help or can't be understood; then `exitCode` is how the
// process should end, and what there is to say has been printed.
std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode);

}  // namespace host
