// A date picker of three wheels, month, day and year in the order of the user's language.
//
//     qv_commons::desktop::IcuCalendar calendar;
//     qv_commons::desktop::WheelDatePicker picker(calendar);
//     picker.setDate(qv_commons::instantAt(951782400));
//     picker.show();
//
// Its colours are the palette's WindowText over whatever it stands on; its font is its own.
#pragma once

#include <QWidget>
#include <array>
#include <functional>
#include <optional>

#include "qv_commons/platform/desktop/date_wheels.h"

namespace qv_commons::desktop {

class Wheel;

class WheelDatePicker final : public QWidget {
  Q_OBJECT

 public:
  // `calendar` outlives the picker.
  explicit WheelDatePicker(const IcuCalendar& calendar, QWidget* parent = nullptr);

  // As `DateWheels` has it; `dateChanged` is for the user's changes alone.
  void setDate(Instant date);
  void setMaximumDate(std::optional<Instant> maximum);
  Instant date() const { return date_.date(); }

  // From the leading side to the trailing one.
  const std::array<Wheel*, 3>& wheels() const { return wheels_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void dateChanged();  // by the user

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void change(const std::function<void()>& change);
  void rearrange();
  void arrange();
  QFont fitFont(std::array<int, 3>& widths);
  std::array<int, 3> widthsOfWheels(const QFont& font, MonthForm form) const;

  DateWheels date_;
  std::array<Wheel*, 3> wheels_{};
};

}  // namespace qv_commons::desktop
