// One wheel of the date picker: rows of text, the chosen one in the middle.
//
// The user turns it with the mouse wheel, by dragging, by a tap on a row, with the keys (arrows,
// Page Up and Down, Home, End, digits) or through a screen reader.
#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include "qv_commons/platform/desktop/date_wheels.h"

namespace qv_commons::desktop {

class Wheel final : public QWidget {
  Q_OBJECT

 public:
  // `date` outlives the wheel.
  Wheel(const DateWheels& date, DateField field, QWidget* parent);

  DateField field() const { return field_; }
  QString chosenText() const { return date_.text(field_, date_.row(field_)); }

  // The wheel's name, the chosen number and the ends, for screen readers.
  QString name() const { return date_.name(field_); }
  int number() const { return date_.number(field_, date_.row(field_)); }
  int lowestNumber() const { return date_.number(field_, 0); }
  int highestNumber() const { return date_.number(field_, date_.rows(field_) - 1); }

  void setMonthForm(MonthForm form);
  QString shownText() const { return date_.text(field_, date_.row(field_), monthForm_); }

  // As wide as the widest of its rows in `font`.
  int widthOfRows(const QFont& font, MonthForm form) const;

  static int rowHeightFor(const QFont& font);
  static int heightFor(const QFont& font);  // of the rows that are in sight

  // The user asks for the next row, or the one before; at an end nothing happens.
  void turnBy(int rows);

  // The user asks for that number, see `DateWheels::type`.
  void turnToNumber(int number) { emit typed(number); }

 signals:
  void turned(int row);    // by the user, to another row than the chosen one
  void typed(int number);  // by the user

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void paintRow(QPainter& painter, int row, double distance) const;
  void turnTo(int row);
  void typeDigit(int digit);
  double draggedRows() const;

  const DateWheels& date_;
  DateField field_;
  MonthForm monthForm_ = MonthForm::full;
  int pressedAt_ = 0;  // y, where the drag began
  int draggedTo_ = 0;  // y
  bool isPressed_ = false;
  bool isDragging_ = false;
  int wheelRest_ = 0;  // of the mouse wheel's turns, less than a row
  int typed_ = 0;
  QElapsedTimer sinceTyped_;
};

}  // namespace qv_commons::desktop
