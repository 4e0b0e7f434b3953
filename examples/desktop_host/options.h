// The host app's command line.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace host {

struct Options {
  QString bundleDirectory;               // --bundle
  QString dataDirectory;                 // --data; empty: the user's
  std::optional<QString> tourDirectory;  // --tour
};

// Nothing where the arguments asked for help or can't be understood; then `exitCode` is how the
// process should end, and what there is to say has been printed.
std::optional<Options> parseOptions(const QStringList& arguments, int& exitCode);

}  // namespace host
