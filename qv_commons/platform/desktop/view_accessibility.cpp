#include "qv_commons/platform/desktop/view_accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTextCursor>
#include <QTextDocument>
#include <utility>

#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/wheel.h"
#include "qv_commons/platform/desktop/wheel_date_picker.h"

namespace qv_commons::desktop {
namespace {

// A text that is read as a whole: nothing in it can be changed or selected by a screen reader.
class ReadText : public QAccessibleTextInterface {
 public:
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override { return all().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(all().size()); }
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 protected:
  virtual QString all() const = 0;
};

// No QObject stands for a link: the accessible text owns it.
class AccessibleLink final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleLink(LinkTextView& text, int link) : text_(text), link_(link) {}

  bool isValid() const override { return link_ < static_cast<int>(text_.links().size()); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return text_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&text_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || !isValid()) return {};
    return text_.links()[static_cast<std::size_t>(link_)].words;
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const QRect place = text_.linkPlace(link_);
    return {text_.viewport()->mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::Role role() const override { return QAccessible::Link; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.linked = true;
    state.focusable = true;
    state.focused = text_.focusedLink() == link_;
    state.disabled = !text_.isEnabled();
    state.invisible = !text_.isVisible();
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool isAction = type == QAccessible::ActionInterface;
    return isAction ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (!text_.isEnabled()) return;
    if (action == pressAction()) text_.pressLink(link_);
    if (action == setFocusAction()) text_.focusLink(link_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  LinkTextView& text_;
  int link_;
};

class AccessibleLinkText final : public QAccessibleWidget, public ReadText {
 public:
  explicit AccessibleLinkText(LinkTextView& text)
      : QAccessibleWidget(&text, QAccessible::StaticText), text_(text) {}
  ~AccessibleLinkText() override { forget(); }

  void forget() {
    for (const QAccessible::Id id : std::exchange(links_, {})) {
      QAccessible::deleteAccessibleInterface(id);
    }
  }

  int childCount() const override { return static_cast<int>(text_.links().size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    while (links_.size() < childCount()) {
      auto* link = new AccessibleLink(text_, static_cast<int>(links_.size()));
      links_.append(QAccessible::registerAccessibleInterface(link));
    }
    return QAccessible::accessibleInterface(links_[index]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
    return static_cast<int>(links_.indexOf(id));
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return child(text_.linkAt(text_.viewport()->mapFromGlobal(QPoint(x, y))));
  }
  QAccessibleInterface* focusChild() const override { return child(text_.focusedLink()); }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? all() : QAccessibleWidget::text(kind);
  }
  using ReadText::text;
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.focused = text_.hasFocus() && text_.focusedLink() < 0;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

 private:
  QString all() const override { return text_.seenText(); }

  LinkTextView& text_;
  mutable QList<QAccessible::Id> links_;
};

// A value is a number there; the words are the spin box's text.
class AccessibleWheel final : public QAccessibleWidget,
                              public QAccessibleValueInterface,
                              public ReadText {
 public:
  explicit AccessibleWheel(Wheel& wheel)
      : QAccessibleWidget(&wheel, QAccessible::SpinBox), wheel_(wheel) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return wheel_.name();
    return kind == QAccessible::Value ? all() : QAccessibleWidget::text(kind);
  }
  using ReadText::text;

  QVariant currentValue() const override { return wheel_.number(); }
  QVariant minimumValue() const override { return wheel_.lowestNumber(); }
  QVariant maximumValue() const override { return wheel_.highestNumber(); }
  QVariant minimumStepSize() const override { return 1; }
  void setCurrentValue(const QVariant& value) override { wheel_.turnToNumber(value.toInt()); }

  QStringList actionNames() const override {
    return QStringList{increaseAction(), decreaseAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == increaseAction()) return wheel_.turnBy(1);
    if (action == decreaseAction()) return wheel_.turnBy(-1);
    QAccessibleWidget::doAction(action);
  }

 private:
  QString all() const override { return wheel_.chosenText(); }

  Wheel& wheel_;
};

AccessibleLinkText* accessibleOf(const LinkTextView& text) {
  if (!QAccessible::isActive()) return nullptr;
  auto* known = QAccessible::queryAccessibleInterface(const_cast<LinkTextView*>(&text));
  return dynamic_cast<AccessibleLinkText*>(known);
}

}  // namespace

QAccessibleInterface* makeAccessibleView(QWidget& widget) {
  if (auto* text = qobject_cast<LinkTextView*>(&widget)) return new AccessibleLinkText(*text);
  if (auto* wheel = qobject_cast<Wheel*>(&widget)) return new AccessibleWheel(*wheel);
  if (qobject_cast<WheelDatePicker*>(&widget) == nullptr) return nullptr;
  return new QAccessibleWidget(&widget, QAccessible::Grouping);
}

void reportLinkFocus(const LinkTextView& text) {
  AccessibleLinkText* accessible = accessibleOf(text);
  QAccessibleInterface* link = accessible == nullptr ? nullptr : accessible->focusChild();
  if (link == nullptr) return;
  QAccessibleEvent focused(link, QAccessible::Focus);
  QAccessible::updateAccessibility(&focused);
}

void forgetLinks(const LinkTextView& text) {
  if (AccessibleLinkText* accessible = accessibleOf(text)) accessible->forget();
}

void reportTurn(Wheel& wheel, const QString& before) {
  QAccessibleTextUpdateEvent words(&wheel, 0, before, wheel.chosenText());
  QAccessible::updateAccessibility(&words);
  QAccessibleValueChangeEvent number(&wheel, wheel.number());
  QAccessible::updateAccessibility(&number);
}

}  // namespace qv_commons::desktop
