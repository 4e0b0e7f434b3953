// The host app's own window: a phone-like list of the services.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>

namespace host {

class HostWindow final : public QWidget {
 public:
  explicit HostWindow(const QString& appName);

  // A row that runs `use` when it is chosen. `name` is the row's object name.
  QPushButton* addService(const QString& name, const QString& title, const QString& explanation,
                          std::function<void()> use);

  // A line at the bottom that says what happened last; screen readers announce it.
  void say(const QString& text);

 private:
  void dress();

  QVBoxLayout* services_;
  QLabel* status_;
};

}  // namespace host
