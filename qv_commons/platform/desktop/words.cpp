#include "qv_commons/platform/desktop/words.h"

#include <QCoreApplication>

#include "qv_commons/platform/desktop/desktop_system.h"
#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/screen_words.h"

// A static library's resources are linked only where they are asked for, outside of any namespace.
static void linkTranslations() {
  Q_INIT_RESOURCE(qv_commons_layouts);
}

namespace qv_commons::desktop {

constexpr const char* kContext = "qv_commons";

QString Words::operator()(const char* english) const {
  const QString source = QString::fromUtf8(english);
  QString apps = QCoreApplication::translate(kContext, english);
  if (apps != source) return apps;
  if (!isLoaded_) load();
  QString ours = translator_.translate(kContext, english);
  return ours.isEmpty() ? source : ours;
}

QString Words::operator()(const Sentence& sentence) const {
  const std::string text = toUtf8((*this)(sentence.english));
  if (direction() != Qt::RightToLeft) return fromUtf8(filled(text, sentence));
  // Or the first slash of a path would be seen at its end.
  Sentence isolated = sentence;
  for (std::string& each : isolated.arguments) {
    each = toUtf8(LinkTextView::kIsolate + fromUtf8(each) + LinkTextView::kEndOfIsolate);
  }
  return fromUtf8(filled(text, isolated));
}

std::optional<Qt::LayoutDirection> Words::direction() const {
  if (!isLoaded_) load();
  if (language_.language() == QLocale::C) return std::nullopt;
  return language_.textDirection();
}

QLocale Words::locale() const {
  return settings_.languages.empty() ? QLocale() : QLocale(fromUtf8(settings_.languages.front()));
}

void Words::load() const {
  isLoaded_ = true;
  linkTranslations();
  language_ = chooseLanguage(preferredLanguages(settings_), [this](const QString& table) {
    return translator_.load(":/qv_commons/translations/" + table + ".qm");
  });
}

}  // namespace qv_commons::desktop
