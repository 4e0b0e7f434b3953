#include "qv_commons/platform/desktop/screen_button.h"

#include <QPainter>
#include <algorithm>

#include "qv_commons/platform/desktop/sheet.h"

namespace qv_commons::desktop {

namespace {

constexpr int kSmallestHeight = 50;
constexpr int kPadding = 16;
constexpr double kPressedOpacity = 0.6;
constexpr double kRingInset = 4;
constexpr double kRingRadius = 5;

}  // namespace

ScreenButton::ScreenButton(QWidget* parent) : QPushButton(parent) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setAutoDefault(true);  // Return presses it
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ScreenButton::sizeHint() const {
  const QFontMetrics metrics(font());
  return {metrics.horizontalAdvance(text()) + 2 * kPadding,
          std::max(kSmallestHeight, metrics.height() + 2 * kPadding)};
}

void ScreenButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink = palette().color(QPalette::ButtonText);
  painter.setOpacity(isDown() ? kPressedOpacity : 1);
  painter.setPen(ink);
  painter.setFont(font());
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
  if (!Sheet::showsFocus(*this)) return;
  painter.setPen(QPen(ink, 2));
  const QRectF ring = QRectF(rect()).adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset);
  painter.drawRoundedRect(ring, kRingRadius, kRingRadius);
}

}  // namespace qv_commons::desktop
