#include "qv_commons/platform/desktop/sheet_guard.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "qv_commons/platform/desktop/sheet.h"

namespace qv_commons::desktop {
namespace {

// What a covered widget must not get, whatever it is.
bool reachesFor(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyRelease:
    case QEvent::Shortcut:  // the second key of a sequence asks for no override
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
    case QEvent::WhatsThis:
    case QEvent::QueryWhatsThis:
    case QEvent::StatusTip:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::Gesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

void trigger(QObject& shortcut) {
  if (auto* button = qobject_cast<QAbstractButton*>(&shortcut)) {
    button->animateClick();
  } else if (auto* action = qobject_cast<QAction*>(&shortcut)) {
    action->trigger();
  } else if (auto* keys = qobject_cast<QShortcut*>(&shortcut)) {
    QShortcutEvent pressed(keys->key(), 0);
    QCoreApplication::sendEvent(keys, &pressed);
  }
}

// Qt makes the global menu bar anew, and tells it neither the entries nor the window by itself.
void makeGlobal(QMenuBar& menus) {
  menus.setNativeMenuBar(true);
  menus.hide();
  const QList<QAction*> entries = menus.actions();
  for (QAction* entry : entries) menus.removeAction(entry);
  menus.addActions(entries);
  QEvent inItsWindow(QEvent::ParentChange);
  QCoreApplication::sendEvent(&menus, &inItsWindow);
}

}  // namespace

SheetGuard& SheetGuard::instance() {
  static QPointer<SheetGuard> guard;
  if (guard == nullptr) guard = new SheetGuard;
  return *guard;
}

SheetGuard::SheetGuard() : QObject(qApp) {}

void SheetGuard::add(Sheet& sheet) {
  if (sheets_.empty()) {
    isKeyboardInUse_ = false;
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { keepFocus(now); });
  }
  sheets_.push_back(&sheet);
}

void SheetGuard::remove(Sheet& sheet) {
  if (std::erase(sheets_, &sheet) == 0 || !sheets_.empty()) return;
  qApp->removeEventFilter(this);
  disconnect(qApp, nullptr, this, nullptr);
}

void SheetGuard::takeMenusIn(const QWidget& window) {
  for (QMenuBar* menus : window.findChildren<QMenuBar*>()) {
    if (!menus->isNativeMenuBar()) continue;
    menus->setNativeMenuBar(false);
    menusTakenIn_.emplace_back(menus);
  }
}

void SheetGuard::giveMenusBack(const QWidget& window) {
  if (topOf(window) != nullptr) return;
  std::erase_if(menusTakenIn_, [&window](const QPointer<QMenuBar>& menus) {
    if (menus != nullptr && !window.isAncestorOf(menus)) return false;
    if (menus != nullptr) makeGlobal(*menus);
    return true;
  });
}

Sheet* SheetGuard::above(const Sheet& sheet) const {
  const auto at = std::find(sheets_.begin(), sheets_.end(), &sheet);
  const auto found = std::find_if(std::next(at), sheets_.end(), [&](const Sheet* other) {
    return other->parentWidget() == sheet.parentWidget();
  });
  return found == sheets_.end() ? nullptr : *found;
}

Sheet* SheetGuard::topOf(const QWidget& window) const {
  const auto found = std::find_if(sheets_.rbegin(), sheets_.rend(), [&](const Sheet* sheet) {
    return sheet->parentWidget() == &window;
  });
  return found == sheets_.rend() ? nullptr : *found;
}

bool SheetGuard::isSheet(const QObject* object) const {
  return std::find(sheets_.begin(), sheets_.end(), object) != sheets_.end();
}

bool SheetGuard::eventFilter(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildPolished:
    case QEvent::ChildRemoved:  // a splitter would make the sheet one of its panes
      if (isSheet(static_cast<QChildEvent*>(event)->child())) return true;
      follow(*receiver, *event);
      return false;
    case QEvent::Resize:
    case QEvent::ZOrderChange:
    case QEvent::ApplicationPaletteChange:
    case QEvent::ApplicationFontChange:
      follow(*receiver, *event);
      return false;
    case QEvent::ShortcutOverride:
      return takeOverride(*receiver, static_cast<QKeyEvent&>(*event));
    case QEvent::KeyPress:
      return takeKey(*receiver, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonRelease:
      return Sheet::isCovered(*receiver) && endPress(*receiver, static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonPress:
      setKeyboardInUse(false);
      break;
    default:
      break;
  }
  if (!reachesFor(event->type()) || !Sheet::isCovered(*receiver)) return false;
  event->ignore();
  return true;
}

// The window has another size, look or child: a sheet stays over all of it.
void SheetGuard::follow(const QObject& receiver, const QEvent& event) {
  for (Sheet* sheet : std::vector(sheets_)) {
    const bool isWindow = sheet->window() == &receiver;
    const bool isParent = sheet->parentWidget() != nullptr && sheet->parentWidget() == &receiver;
    if (event.type() == QEvent::Resize) {
      if (isParent) sheet->fit();
    } else if (event.type() == QEvent::ChildAdded) {
      if (isParent) sheet->raise();
    } else if (event.type() == QEvent::ZOrderChange) {
      if (receiver.parent() == sheet->parentWidget() && !isSheet(&receiver)) sheet->raise();
    } else if (isWindow) {
      emit sheet->appearanceChanged();
    }
  }
}

// Accepted, a key passes by the application's shortcuts and goes to what has the focus. The sheet's
// own are found here: among all of them, one that the host has too would be ambiguous.
bool SheetGuard::takeOverride(const QObject& receiver, QKeyEvent& key) {
  const auto* sheet = qobject_cast<const Sheet*>(&receiver);
  if (sheet == nullptr && !Sheet::isCovered(receiver)) return false;
  ownShortcut_ =
      sheet == nullptr ? nullptr : sheet->shortcutFor(QKeySequence(key.keyCombination()));
  key.accept();
  return true;
}

bool SheetGuard::takeKey(const QObject& receiver, QKeyEvent& key) {
  if (!receiver.isWidgetType()) return false;
  const QWidget& window = *static_cast<const QWidget&>(receiver).window();
  if (const QPointer<QObject> own = std::exchange(ownShortcut_, nullptr)) {
    key.accept();
    trigger(*own);
    return true;
  }
  if (Sheet::isCovered(receiver)) return true;
  if (topOf(window) == nullptr && qobject_cast<const Sheet*>(&window) == nullptr) return false;
  setKeyboardInUse(true);
  // Alt and a letter is no shortcut any more, and would be typed as the letter.
  return key.modifiers().testFlag(Qt::AltModifier) && !key.text().isEmpty();
}

// A button that was held down when the sheet came is let go, and not clicked.
bool SheetGuard::endPress(QObject& receiver, const QMouseEvent& release) {
  if (isEndingPress_) return false;
  isEndingPress_ = true;
  QMouseEvent outside(release.type(), QPointF(-1, -1), release.globalPosition(), release.button(),
                      release.buttons(), release.modifiers());
  QCoreApplication::sendEvent(&receiver, &outside);
  isEndingPress_ = false;
  return true;
}

// The focus can't be refused to the host, only given back.
void SheetGuard::keepFocus(QWidget* now) {
  Sheet* top = now == nullptr ? nullptr : topOf(*now->window());
  if (top == nullptr) return;
  if (!Sheet::isCovered(*now)) {
    if (now != top) top->setFocusProxy(now);  // so that a click on the ground leaves it there
    return;
  }
  if (!isSheet(now) && top->focusBefore_ != now) {
    const auto lowest = std::find_if(sheets_.begin(), sheets_.end(), [now](const Sheet* sheet) {
      return sheet->parentWidget() == now->window();
    });
    (*lowest)->focusBefore_ = now;  // the host has moved it, and finds it there afterwards
  }
  top->takeFocus();
}

void SheetGuard::setKeyboardInUse(bool isInUse) {
  if (std::exchange(isKeyboardInUse_, isInUse) == isInUse) return;
  QWidget* focused = QApplication::focusWidget();
  if (focused == nullptr) return;
  focused->update();
  if (auto* area = qobject_cast<QAbstractScrollArea*>(focused)) area->viewport()->update();
}

}  // namespace qv_commons::desktop
