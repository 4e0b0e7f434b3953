// String tables (.strings): words by key, as in
//
//     /* Heading of the age gate */
//     "header.text" = "Wann sind Sie geboren?";
#pragma once

#include <QHash>
#include <QString>
#include <string_view>

namespace qv_commons::desktop {

struct StringTable {
  QHash<QString, QString> words;  // by key; all before what makes no sense
  QString problem;                // what makes no sense, or empty
};

// Any bytes. Words may hold \n, \t, \", \\ and UTF-16 units as in \U2060; a byte order mark and
// comments are read over.
StringTable parseStringTable(std::string_view bytes);

}  // namespace qv_commons::desktop
