#include "qv_commons/platform/desktop/wheel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "qv_commons/platform/desktop/sheet.h"

namespace qv_commons::desktop {

namespace {

constexpr int kSmallestRow = 44;      // what a finger hits
constexpr double kRowsInSight = 4.6;  // so that the outermost are cut: there are more
constexpr int kRowsByPage = 5;
constexpr double kDegreesByRow = 20;  // as if on a drum
constexpr int kTypingPauseMilliseconds = 1000;
constexpr int kMostTyped = 99999;

// The weakest is still 4.5 to 1 for black on white and for white on black.
constexpr double kWeakestOpacity = 0.58;
constexpr double kOpacityLostByRow = 0.28;

}  // namespace

Wheel::Wheel(const DateWheels& date, DateField field, QWidget* parent)
    : QWidget(parent), date_(date), field_(field) {
  setFocusPolicy(Qt::StrongFocus);
}

void Wheel::setMonthForm(MonthForm form) {
  monthForm_ = form;
  update();
}

int Wheel::widthOfRows(const QFont& font, MonthForm form) const {
  const QFontMetrics metrics(font);
  const int rows = date_.rows(field_);
  // Years are many, and as wide as their digits.
  const int step = field_ == DateField::year ? std::max(1, rows / 8) : 1;
  int width = 0;
  for (int row = 0; row < rows; row += step) {
    width = std::max(width, metrics.horizontalAdvance(date_.text(field_, row, form)));
  }
  return width;
}

int Wheel::rowHeightFor(const QFont& font) {
  return std::max(kSmallestRow, static_cast<int>(std::ceil(1.3 * QFontMetrics(font).height())));
}

int Wheel::heightFor(const QFont& font) {
  return static_cast<int>(kRowsInSight * rowHeightFor(font));
}

void Wheel::turnBy(int rows) {
  turnTo(date_.row(field_) + rows);
}

void Wheel::turnTo(int row) {
  const int nearest = std::clamp(row, 0, date_.rows(field_) - 1);
  if (nearest != date_.row(field_)) emit turned(nearest);
}

void Wheel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const double dragged = draggedRows();
  const int middle = date_.row(field_) - static_cast<int>(std::lround(dragged));
  for (int row = middle - 2; row <= middle + 2; ++row) {
    if (row >= 0 && row < date_.rows(field_))
      paintRow(painter, row, row - date_.row(field_) + dragged);
  }
  if (!Sheet::showsFocus(*this)) return;
  QRectF ring(0, 0, width(), rowHeightFor(font()));
  ring.moveCenter(QRectF(rect()).center());
  painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(ring.adjusted(1, 1, -1, -1), 8, 8);
}

void Wheel::paintRow(QPainter& painter, int row, double distance) const {
  const double angle = distance * kDegreesByRow * std::numbers::pi / 180;
  const double radius = rowHeightFor(font()) / std::sin(kDegreesByRow * std::numbers::pi / 180);
  painter.save();
  painter.translate(width() / 2.0, height() / 2.0 + radius * std::sin(angle));
  painter.scale(1, std::cos(angle));
  painter.setOpacity(std::max(kWeakestOpacity, 1 - kOpacityLostByRow * std::abs(distance)));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(font());
  const QRectF place(-width() / 2.0, -rowHeightFor(font()) / 2.0, width(), rowHeightFor(font()));
  painter.drawText(place, Qt::AlignCenter, date_.text(field_, row, monthForm_));
  painter.restore();
}

void Wheel::keyPressEvent(QKeyEvent* event) {
  const int digit = event->text().isEmpty() ? -1 : event->text().front().digitValue();
  const bool isReversed = layoutDirection() == Qt::RightToLeft;
  if (event->key() == Qt::Key_Down) {
    turnBy(1);
  } else if (event->key() == Qt::Key_Up) {
    turnBy(-1);
  } else if (event->key() == Qt::Key_PageDown) {
    turnBy(kRowsByPage);
  } else if (event->key() == Qt::Key_PageUp) {
    turnBy(-kRowsByPage);
  } else if (event->key() == Qt::Key_Home) {
    turnTo(0);
  } else if (event->key() == Qt::Key_End) {
    turnTo(date_.rows(field_) - 1);
  } else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
    focusNextPrevChild((event->key() == Qt::Key_Right) != isReversed);
  } else if (digit >= 0) {
    typeDigit(digit);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void Wheel::typeDigit(int digit) {
  const bool goesOn = sinceTyped_.isValid() && sinceTyped_.elapsed() < kTypingPauseMilliseconds &&
                      typed_ <= kMostTyped / 10;
  typed_ = (goesOn ? 10 * typed_ : 0) + digit;
  sinceTyped_.start();
  turnToNumber(typed_);
}

void Wheel::focusOutEvent(QFocusEvent* event) {
  typed_ = 0;
  QWidget::focusOutEvent(event);
}

void Wheel::wheelEvent(QWheelEvent* event) {
  wheelRest_ -= event->angleDelta().y();
  const int rows = wheelRest_ / QWheelEvent::DefaultDeltasPerStep;
  wheelRest_ -= rows * QWheelEvent::DefaultDeltasPerStep;
  turnBy(rows);
  event->accept();
}

void Wheel::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  isPressed_ = true;
  pressedAt_ = draggedTo_ = event->position().toPoint().y();
}

void Wheel::mouseMoveEvent(QMouseEvent* event) {
  if (!isPressed_) return;
  draggedTo_ = event->position().toPoint().y();
  isDragging_ =
      isDragging_ || std::abs(draggedTo_ - pressedAt_) >= QApplication::startDragDistance();
  update();
}

// A drag ends on the row that is nearest to the middle, a tap on the row that was hit.
void Wheel::mouseReleaseEvent(QMouseEvent* event) {
  if (!isPressed_ || event->button() != Qt::LeftButton) return;
  const double tapped = (pressedAt_ - height() / 2.0) / rowHeightFor(font());
  const double rows = isDragging_ ? -draggedRows() : tapped;
  isPressed_ = isDragging_ = false;
  turnBy(static_cast<int>(std::lround(rows)));
  update();
}

// Positive downwards; hardly further than the ends.
double Wheel::draggedRows() const {
  if (!isDragging_) return 0;
  constexpr double kBeyondTheEnd = 0.4;
  const double rows = static_cast<double>(draggedTo_ - pressedAt_) / rowHeightFor(font());
  const int row = date_.row(field_);
  return std::clamp(rows, row - date_.rows(field_) + 1 - kBeyondTheEnd, row + kBeyondTheEnd);
}

}  // namespace qv_commons::desktop
