#include "qv_commons/platform/desktop/wheel_accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "qv_commons/platform/desktop/wheel.h"

namespace qv_commons::desktop {

namespace {

class AccessibleWheel final : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleWheel(Wheel& wheel)
      : QAccessibleWidget(&wheel, QAccessible::SpinBox), wheel_(wheel) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  // A month is a number to the value interface; the description says it in words.
  QString text(QAccessible::Text kind) const override {
    const bool isChosen = kind == QAccessible::Value || kind == QAccessible::Description;
    return isChosen ? wheel_.chosenText() : QAccessibleWidget::text(kind);
  }

  QVariant currentValue() const override { return wheel_.number(); }
  QVariant minimumValue() const override { return wheel_.lowestNumber(); }
  QVariant maximumValue() const override { return wheel_.highestNumber(); }
  QVariant minimumStepSize() const override { return 1; }
  void setCurrentValue(const QVariant& value) override { wheel_.turnToNumber(value.toInt()); }

  QStringList actionNames() const override {
    return QStringList{increaseAction(), decreaseAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action == increaseAction()) {
      wheel_.turnBy(1);
    } else if (action == decreaseAction()) {
      wheel_.turnBy(-1);
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  Wheel& wheel_;
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
  auto* wheel = qobject_cast<Wheel*>(object);
  return wheel == nullptr ? nullptr : new AccessibleWheel(*wheel);
}

}  // namespace

void installWheelAccessibility() {
  QAccessible::removeFactory(makeAccessible);
  QAccessible::installFactory(makeAccessible);
}

}  // namespace qv_commons::desktop
