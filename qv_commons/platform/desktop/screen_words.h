// The words of a screen in the user's language: beside its layout, QV_AgeGateViewController.ui,
// string tables such as de.lproj/QV_AgeGateViewController.strings, or a layout of the language's
// own, de.lproj/QV_AgeGateViewController.ui.
#pragma once

#include <QHash>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

namespace qv_commons::desktop {

// What the tables of a language are called, the closest first: for "zh_TW.UTF-8" zh-Hant-TW, zh-TW,
// zh-Hant and zh. Empty for what is no language.
QStringList tableNames(const QLocale& language);

// The first of the user's languages of which `take`, given the names of its tables, takes one; C if
// none is taken before English, which everything is in.
QLocale chooseLanguage(const std::vector<std::string>& languages,
                       const std::function<bool(const QString& table)>& take);

struct ScreenWords {
  std::string layout = {};             // that they are for
  QLocale language = QLocale::c();     // C: the layout's own
  QHash<QString, QString> words = {};  // by key
};

// Those in the first of the user's languages in which there are any, for `layout`, or the layout of
// that language's own, which needs none. None where that is English, which the layouts are in.
// `report` is told, in a sentence, of a table that makes no sense; what
// it lacks then, as what any table lacks, is in the layout's language.
ScreenWords findWords(const std::string& layout, const std::vector<std::string>& languages,
                      const std::function<void(const std::string&)>& report);

// Puts them into the views of the screen that name a key in their property "words", with the
// formats that the layout has at the same places. An app's own translator comes first: it is asked
// for the layout's text in the context of the screen's name.
void applyWords(QWidget& screen, const ScreenWords& words);

}  // namespace qv_commons::desktop
