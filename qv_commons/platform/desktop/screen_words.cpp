#include "qv_commons/platform/desktop/screen_words.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/qt_text.h"
#include "qv_commons/platform/desktop/string_table.h"

namespace qv_commons::desktop {
namespace {

// The ranges of links are the same in every language, so formats stay where they are.
void replaceText(LinkTextView& view, const QString& text) {
  struct Piece {
    int start;
    QTextCharFormat format;
  };
  std::vector<Piece> pieces;
  for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
    for (auto each = block.begin(); !each.atEnd(); ++each) {
      pieces.push_back({each.fragment().position(), each.fragment().charFormat()});
    }
  }
  QTextCursor cursor(view.document());
  cursor.beginEditBlock();
  cursor.select(QTextCursor::Document);
  cursor.removeSelectedText();
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const int start = pieces[i].start;
    const int length = i + 1 < pieces.size() ? pieces[i + 1].start - start : -1;
    cursor.insertText(text.mid(start, length), pieces[i].format);
  }
  cursor.endEditBlock();
}

QString textOf(const QWidget& view, const QString& key) {
  if (key.endsWith(".accessibilityLabel")) return view.accessibleName();
  if (const auto* text = qobject_cast<const LinkTextView*>(&view)) return text->toPlainText();
  if (const auto* label = qobject_cast<const QLabel*>(&view)) return label->text();
  const auto* button = qobject_cast<const QAbstractButton*>(&view);
  return button == nullptr ? QString() : button->text();
}

void setText(QWidget& view, const QString& key, const QString& text) {
  if (key.endsWith(".accessibilityLabel")) return view.setAccessibleName(text);
  if (auto* linked = qobject_cast<LinkTextView*>(&view)) return replaceText(*linked, text);
  if (auto* label = qobject_cast<QLabel*>(&view)) return label->setText(text);
  if (auto* button = qobject_cast<QAbstractButton*>(&view)) button->setText(text);
}

}  // namespace

QStringList tableNames(const QLocale& language) {
  if (language.language() == QLocale::C) return {};
  const QString name = QLocale::languageToCode(language.language());
  const QString script = QLocale::scriptToCode(language.script());
  const QString region = QLocale::territoryToCode(language.territory());
  return {name + "-" + script + "-" + region, name + "-" + region, name + "-" + script, name};
}

QLocale chooseLanguage(const std::vector<std::string>& languages,
                       const std::function<bool(const QString& table)>& take) {
  for (const std::string& each : languages) {
    const QLocale language(fromUtf8(each));
    const QStringList tables = tableNames(language);
    if (std::any_of(tables.begin(), tables.end(), take)) return language;
    if (language.language() == QLocale::English) break;
  }
  return QLocale::c();
}

ScreenWords findWords(const std::string& layout, const std::vector<std::string>& languages,
                      const std::function<void(const std::string&)>& report) {
  const QString path = QFile::decodeName(layout.c_str());
  const qsizetype folder = path.lastIndexOf('/') + 1;
  const QString screen = path.mid(folder).section('.', 0, 0);
  QString own;
  QFile file;
  const QLocale language = chooseLanguage(languages, [&](const QString& table) {
    const QString translated = path.left(folder) + table + ".lproj/" + screen;
    if (QFile::exists(translated + ".ui")) own = translated + ".ui";
    file.setFileName(translated + ".strings");
    return !own.isEmpty() || file.open(QIODevice::ReadOnly);
  });
  if (!own.isEmpty()) return {QFile::encodeName(own).toStdString(), language, {}};
  if (!file.isOpen()) return {layout};
  StringTable table = parseStringTable(file.readAll().toStdString());
  if (!table.problem.isEmpty()) {
    report(toUtf8("the string table " + file.fileName() + " " + table.problem));
  }
  if (table.words.isEmpty()) return {layout};
  return {layout, language, std::move(table.words)};
}

void applyWords(QWidget& screen, const ScreenWords& words) {
  const QByteArray context = screen.objectName().toUtf8();
  for (QWidget* view : screen.findChildren<QWidget*>()) {
    const QString key = view->property("words").toString();
    if (key.isEmpty()) continue;
    const QString own = textOf(*view, key);
    const QString hosts = QCoreApplication::translate(context, own.toUtf8());
    const QString text = hosts == own ? words.words.value(key, own) : hosts;
    if (text != own) setText(*view, key, text);
  }
  if (words.language.language() != QLocale::C) {
    screen.setLayoutDirection(words.language.textDirection());
  }
}

}  // namespace qv_commons::desktop
