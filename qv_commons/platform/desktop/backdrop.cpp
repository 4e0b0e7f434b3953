#include "qv_commons/platform/desktop/backdrop.h"

#include <QEvent>
#include <QPainter>
#include <QRegion>
#include <algorithm>
#include <cmath>

namespace qv_commons::desktop {

Backdrop::Backdrop(QWidget& widget) : QObject(&widget), widget_(widget) {
  widget.installEventFilter(this);
}

void Backdrop::setColor(const QColor& color) {
  color_ = color;
  widget_.update();
}

void Backdrop::setCornerRadius(double radius) {
  radius_ = radius;
  clip();
  widget_.update();
}

void Backdrop::setClipsToBounds(bool clips) {
  clips_ = clips;
  clip();
}

bool Backdrop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) paint();
  if (event->type() == QEvent::Resize) clip();
  return QObject::eventFilter(watched, event);
}

void Backdrop::paint() {
  QPainter painter(&widget_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color_);
  painter.drawRoundedRect(QRectF(widget_.rect()), radius_, radius_);
}

// A mask knows no half pixels: it keeps those that the arc touches, which the paint above has
// softened.
void Backdrop::clip() {
  if (!clips_ || radius_ <= 0 || widget_.size().isEmpty()) {
    widget_.clearMask();
    return;
  }
  const int width = widget_.width();
  const int height = widget_.height();
  const int rows = std::min(static_cast<int>(radius_), height / 2);
  QRegion mask(0, rows, width, height - 2 * rows);
  for (int row = 0; row < rows; ++row) {
    const double toCentre = radius_ - (row + 1);  // from the row's inner edge
    const int inset =
        static_cast<int>(radius_ - std::sqrt(radius_ * radius_ - toCentre * toCentre));
    mask += QRect(inset, row, width - 2 * inset, 1);
    mask += QRect(inset, height - 1 - row, width - 2 * inset, 1);
  }
  widget_.setMask(mask);
}

}  // namespace qv_commons::desktop
