#include "qv_commons/platform/desktop/sheet_accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QString>
#include <QTimer>
#include <utility>

#include "qv_commons/platform/desktop/sheet.h"
#include "qv_commons/platform/desktop/style_boundary.h"
#include "qv_commons/platform/desktop/view_accessibility.h"

namespace qv_commons::desktop {
namespace {

// A window: of all that is in it only the topmost sheet, while it has one.
class AccessibleWindow final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  int childCount() const override { return top() ? 1 : QAccessibleWidget::childCount(); }
  QAccessibleInterface* child(int index) const override {
    if (top() == nullptr) return QAccessibleWidget::child(index);
    return index == 0 ? QAccessible::queryAccessibleInterface(top()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    if (top() == nullptr) return QAccessibleWidget::indexOfChild(child);
    return child != nullptr && child->object() == top() ? 0 : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return top() == nullptr ? QAccessibleWidget::childAt(x, y) : child(0);
  }

 private:
  Sheet* top() const { return Sheet::topOf(*widget()); }
};

class AccessibleSheet final : public QAccessibleWidget {
 public:
  explicit AccessibleSheet(QWidget* sheet) : QAccessibleWidget(sheet, QAccessible::Dialog) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.modal = true;
    state.focusable = false;
    state.focused = QApplication::focusWidget() == widget();  // not what has the focus for it
    return state;
  }
};

// What a reader finds that holds on to a covered widget.
class AccessibleCovered final : public QAccessibleObject {
 public:
  using QAccessibleObject::QAccessibleObject;

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(object()->parent());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text) const override { return {}; }
  QAccessible::Role role() const override { return QAccessible::NoRole; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = true;
    state.disabled = true;
    return state;
  }
};

// One announcement. It lies under the application: under a sheet, the sheet would be read out
// first. Readers ask for the text a while after they were told, so each has its own object for some
// time.
class Announcer final : public QObject {
 public:
  explicit Announcer(QString announced) : QObject(qApp), text(std::move(announced)) {
    constexpr int kLifeMilliseconds = 10'000;
    QTimer::singleShot(kLifeMilliseconds, this, &QObject::deleteLater);
  }
  const QString text;
};

class AccessibleAnnouncer final : public QAccessibleObject {
 public:
  explicit AccessibleAnnouncer(Announcer& announcer) : QAccessibleObject(&announcer) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(qApp);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? static_cast<Announcer*>(object())->text : QString();
  }
};

// The plainest windows have this interface from the start, so that what a reader knows of them
// stays valid; every other one while it is covered.
bool isPlain(const QString& className) {
  return className == "QWidget" || className == "QMainWindow" || className == "QDialog";
}

QAccessibleInterface* makeWindow(const QString& className, QWidget* window) {
  if (!isPlain(className) && Sheet::topOf(*window) == nullptr) return nullptr;
  const bool isDialog = qobject_cast<QDialog*>(window) != nullptr;
  return new AccessibleWindow(window, isDialog ? QAccessible::Dialog : QAccessible::Window);
}

QAccessibleInterface* make(const QString& key, QObject* object) {
  if (auto* announcer = dynamic_cast<Announcer*>(object))
    return new AccessibleAnnouncer(*announcer);
  if (object == nullptr || !object->isWidgetType()) return nullptr;
  auto* widget = static_cast<QWidget*>(object);
  if (!widget->isWindow() && Sheet::isCovered(*widget)) return new AccessibleCovered(widget);
  if (auto* sheet = qobject_cast<Sheet*>(widget)) return new AccessibleSheet(sheet);
  if (widget->isWindow()) return makeWindow(key, widget);
  // By its class's name Qt takes it for a tool tip.
  if (dynamic_cast<StyleBoundary*>(widget) != nullptr) {
    return new QAccessibleWidget(widget, QAccessible::Client);
  }
  return makeAccessibleView(*widget);
}

void forget(QObject* object) {
  QAccessibleInterface* known = QAccessible::queryAccessibleInterface(object);
  if (known != nullptr) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
}

}  // namespace

void installAccessibility() {
  QAccessible::removeFactory(make);
  QAccessible::installFactory(make);
  // What a reader knows already of the host's windows is Qt's own.
  for (QWidget* window : QApplication::topLevelWidgets()) forget(window);
}

void forgetCovered(QWidget& window) {
  if (!QAccessible::isActive()) return;
  if (!isPlain(window.metaObject()->className())) forget(&window);
  const QWidget* top = Sheet::topOf(window);
  for (QAction* action : window.findChildren<QAction*>()) forget(action);
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget != top && (top == nullptr || !top->isAncestorOf(widget))) forget(widget);
  }
}

void announceTop(QWidget& window) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent reordered(&window, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&reordered);
  if (Sheet* top = Sheet::topOf(window)) {
    QAccessibleEvent started(top, QAccessible::DialogStart);
    QAccessible::updateAccessibility(&started);
  }
}

void announce(const QString& text) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent shown(new Announcer(text), QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace qv_commons::desktop
