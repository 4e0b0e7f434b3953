// Keeps what lies beneath sheets from being reached. One for the application, which listens only
// while a sheet is up.
#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

class QKeyEvent;
class QMouseEvent;

namespace qv_commons::desktop {

class Sheet;

class SheetGuard final : public QObject {
 public:
  static SheetGuard& instance();

  void add(Sheet& sheet);
  void remove(Sheet& sheet);

  // In the same window.
  Sheet* above(const Sheet& sheet) const;
  Sheet* topOf(const QWidget& window) const;

  bool isKeyboardInUse() const { return isKeyboardInUse_; }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  SheetGuard();

  bool isSheet(const QObject* object) const;
  void follow(const QObject& receiver, const QEvent& event);
  bool takeOverride(const QObject& receiver, QKeyEvent& key);
  bool takeKey(const QObject& receiver, QKeyEvent& key);
  bool endPress(QObject& receiver, const QMouseEvent& release);
  void keepFocus(QWidget* now);
  void setKeyboardInUse(bool isInUse);

  std::vector<Sheet*> sheets_;  // the last one on top
  QPointer<QObject> ownShortcut_;
  bool isEndingPress_ = false;
  bool isKeyboardInUse_ = false;
};

}  // namespace qv_commons::desktop
