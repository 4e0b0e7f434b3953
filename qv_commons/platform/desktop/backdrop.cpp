#include "qv_commons/platform/desktop/backdrop.h"

#include <QBitmap>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <cmath>

namespace qv_commons::desktop {

namespace {

// The relative luminance of sRGB, as the Web Content Accessibility Guidelines define it.
double luminanceOf(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

// Where black and white stand out equally: (L + 0.05) / 0.05 = 1.05 / (L + 0.05).
constexpr double kLuminanceOfEqualContrast = 0.179;

}  // namespace

Backdrop::Backdrop(QWidget& widget) : QObject(&widget), widget_(widget) {
  widget.installEventFilter(this);
}

void Backdrop::setColor(const QColor& color) {
  color_ = color;
  if (color.alpha() == 255) {
    const QColor ink = luminanceOf(color) > kLuminanceOfEqualContrast ? Qt::black : Qt::white;
    QPalette palette = widget_.palette();
    palette.setColor(QPalette::Window, color);
    palette.setColor(QPalette::Base, color);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::ButtonText, ink);
    widget_.setPalette(palette);
  }
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
