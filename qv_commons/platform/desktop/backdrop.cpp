#include "qv_commons/platform/desktop/backdrop.h"

#include <QBitmap>
#include <QEvent>
#include <QPainter>

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

// A mask knows no half pixels: it keeps those on the arc, which the paint above has softened.
void Backdrop::clip() {
  if (!clips_ || radius_ <= 0 || widget_.size().isEmpty()) {
    widget_.clearMask();
    return;
  }
  QBitmap mask(widget_.size());
  mask.clear();
  QPainter painter(&mask);
  painter.setPen(QPen(Qt::color1, 1));
  painter.setBrush(Qt::color1);
  painter.drawRoundedRect(mask.rect().adjusted(0, 0, -1, -1), radius_, radius_);
  painter.end();
  widget_.setMask(mask);
}

}  // namespace qv_commons::desktop
