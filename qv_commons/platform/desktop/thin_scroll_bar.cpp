#include "qv_commons/platform/desktop/thin_scroll_bar.h"

#include <QPainter>
#include <algorithm>

namespace qv_commons::desktop {

namespace {

constexpr int kWidth = 8;
constexpr int kHandleWidth = 4;
constexpr int kShortestHandle = 32;
constexpr double kOpacity = 0.4;

}  // namespace

ThinScrollBar::ThinScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent) {}

QSize ThinScrollBar::sizeHint() const {
  const QSize upright(kWidth, kShortestHandle);
  return orientation() == Qt::Vertical ? upright : upright.transposed();
}

void ThinScrollBar::paintEvent(QPaintEvent*) {
  const int steps = maximum() - minimum();
  if (steps <= 0) return;
  const bool isVertical = orientation() == Qt::Vertical;
  const int room = isVertical ? height() : width();
  const int length = std::max(kShortestHandle, room * pageStep() / (steps + pageStep()));
  const int start = (room - length) * (value() - minimum()) / steps;
  const double beside = (kWidth - kHandleWidth) / 2.0;
  const QRectF handle = isVertical ? QRectF(beside, start, kHandleWidth, length)
                                   : QRectF(start, beside, length, kHandleWidth);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(kOpacity);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::WindowText));
  painter.drawRoundedRect(handle, 2, 2);
}

}  // namespace qv_commons::desktop
