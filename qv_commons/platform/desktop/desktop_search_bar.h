// A search bar for desktop hosts: a widget with a magnifying glass, a line to type into and a
// button that clears it.
//
//     qv_commons::desktop::DesktopSearchBar bar("Search notes");
//     QLineEdit* field = qv_commons::qv_searchTextField_all_iOS_versions(bar);
//     if (field != nullptr) field->setText("birthday");
//
// Main thread only.
#pragma once

#include <QWidget>
#include <string_view>

#include "qv_commons/view_utils/search_bar.h"

class QLineEdit;

namespace qv_commons::desktop {

class DesktopSearchBar final : public QWidget {
 public:
  // `prompt` is shown while the line is empty, and is what screen readers call it.
  explicit DesktopSearchBar(const QString& prompt, QWidget* parent = nullptr);

  QLineEdit* searchTextField() const { return field_; }

  // The one key that a search bar knows is "_searchField"; any other is a fatal error.
  QLineEdit* valueForKey(std::string_view key) const;
  static QLineEdit* toTextField(QLineEdit* value) { return value; }

 private:
  QLineEdit* field_;
};

}  // namespace qv_commons::desktop
