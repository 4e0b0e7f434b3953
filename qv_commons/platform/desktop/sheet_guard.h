// Keeps what lies beneath sheets from being reached. One for the application, which listens only
// while a sheet is up.
#pragma once

#include <QMenuBar>
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

  // A desktop's global menu bar shows a window's menus where no sheet covers them: they are in the
  // window for as long as it has sheets.
  void takeMenusIn(const QWidget& window);
  void giveMenusBack(const QWidget& window);

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
  std::vector<QPointer<QMenuBar>> menusTakenIn_;
  QPointer<QObject> ownShortcut_;
  bool isEndingPress_ = false;
  bool isKeyboardInUse_ = false;
};

}  // namespace qv_commons::desktop
