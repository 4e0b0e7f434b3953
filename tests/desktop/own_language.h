// Texts are compared with English ones; all else in the tests follows the machine's language.
#pragma once

#include <QLocale>
#include <clocale>

// Once there is a QApplication, which sets the locale of the process.
inline void speakEnglish() {
  std::setlocale(LC_MESSAGES, "C");
  QLocale::setDefault(QLocale("en-US"));
}
