// The host app's own window: a phone-like list of the services, and a page for each that has one.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>

namespace host {

class HostWindow final : public QWidget {
 public:
  HostWindow(const QString& appName, bool dark);

  // A row that runs `use` when it is chosen. `name` is the row's object name.
  QPushButton* addService(const QString& name, const QString& title, const QString& explanation,
                          std::function<void()> use);

  // A row that opens a page with `content`, and a way back. The page's object name is `name` +
  // "Page".
  void addPage(const QString& name, const QString& title, const QString& explanation,
               QWidget* content);

  // A row that opens `page` as it is.
  void addBarePage(const QString& name, const QString& title, const QString& explanation,
                   QWidget* page);

  void goHome();

  // The list and the pages; the current one is what the window shows.
  QStackedWidget& pages() { return *pages_; }

  // A line at the bottom that says what happened last; screen readers announce it.
  void say(const QString& text);

 private:
  QWidget* makeList(const QString& appName);
  void dress(bool dark);

  QVBoxLayout* services_ = nullptr;
  QStackedWidget* pages_;
  QLabel* status_;
};

// A line of text in one of the window's styles: "title", "rowTitle", "text", "hint" or "status".
QLabel* makeLabel(const QString& text, const char* role, QWidget* parent = nullptr);

// What leads from a page to the list.
QPushButton* makeBackButton(std::function<void()> use);

}  // namespace host
