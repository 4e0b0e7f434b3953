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

ThinScrollBar::ThinScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {}

QSize ThinScrollBar::sizeHint() const {
  return {kWidth, kShortestHandle};
}

void ThinScrollBar::paintEvent(QPaintEvent*) {
  const int steps = maximum() - minimum();
  if (steps <= 0) return;
  const int length = std::max(kShortestHandle, height() * pageStep() / (steps + pageStep()));
  const int top = (height() - length) * (value() - minimum()) / steps;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(kOpacity);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::WindowText));
  painter.drawRoundedRect(QRectF((width() - kHandleWidth) / 2.0, top, kHandleWidth, length), 2, 2);
}

}  // namespace qv_commons::desktop
