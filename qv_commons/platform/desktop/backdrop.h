// The ground of a widget: a colour, rounded corners, and whether what the widget holds is cut off
// at them.
//
// It is painted before the widget paints itself, and without a style sheet, which would push the
// widget's own looks aside.
#pragma once

#include <QColor>
#include <QObject>
#include <QWidget>

namespace qv_commons::desktop {

class Backdrop final : public QObject {
 public:
  // Belongs to `widget`, and goes with it.
  explicit Backdrop(QWidget& widget);

  void setColor(const QColor& color);
  void setCornerRadius(double radius);
  void setClipsToBounds(bool clips);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void paint();
  void clip();

  QWidget& widget_;
  QColor color_ = Qt::transparent;
  double radius_ = 0;
  bool clips_ = false;
};

}  // namespace qv_commons::desktop
