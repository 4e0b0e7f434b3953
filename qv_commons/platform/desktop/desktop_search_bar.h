// A search bar for desktop hosts: a widget with a magnifying glass, a line to type into and a
// button that clears it.
//
//     qv_commons::desktop::DesktopSearchBar bar("Search notes");
//     if (qv_commons::TextField* field = bar.qv_searchTextField_all_iOS_versions()) {
//       field->setText("birthday");
//     }
//
// Main thread only.
#pragma once

#include <QWidget>

#include "qv_commons/view_utils/search_bar.h"

class QLineEdit;

namespace qv_commons::desktop {

class DesktopSearchBar final : public QWidget, public SearchBar {
 public:
  // `prompt` is shown while the line is empty, and is what screen readers call it.
  explicit DesktopSearchBar(const QString& prompt, QWidget* parent = nullptr);

  // For the host's own connections.
  QLineEdit& line() const { return *line_; }

  TextField* searchTextField() const override;

  // The one key that a search bar knows is "_searchField"; any other is a fatal error.
  SearchBarValue valueForKey(std::string_view key) const override;

 private:
  class Field final : public TextField {
   public:
    explicit Field(QLineEdit& line) : line_(line) {}
    std::string text() const override;
    void setText(const std::string& text) override;

   private:
    QLineEdit& line_;
  };

  QLineEdit* line_;
  mutable Field field_;
};

}  // namespace qv_commons::desktop
