// The adapter's own words, such as the composer's, in the user's language. They are in English in
// the code, and in translations/ in others.
//
//     button->setText(words("Cancel"));
//     label->setText(words(Sentence("Saved to %1", {path})));
#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>
#include <optional>

#include "qv_commons/platform/desktop/desktop_platform.h"
#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

class Words {
 public:
  // `settings` outlive it. Nothing is read before a word is asked for.
  explicit Words(const DesktopSettings& settings) : settings_(settings) {}

  // An app's own translator comes first, asked in the context "qv_commons".
  QString operator()(const char* english) const;
  QString operator()(const Sentence& sentence) const;

  // In which they are written, where they are the library's in a language other than English.
  std::optional<Qt::LayoutDirection> direction() const;

  // By which numbers and dates are written: of the host's first language, else Qt's default.
  QLocale locale() const;

 private:
  void load() const;

  const DesktopSettings& settings_;
  mutable QTranslator translator_;
  mutable QLocale language_ = QLocale::c();  // of what is loaded; C: none
  mutable bool isLoaded_ = false;
};

}  // namespace qv_commons::desktop
