#include "qv_commons/platform/desktop/wheel_date_picker.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <numeric>

#include "qv_commons/platform/desktop/view_accessibility.h"
#include "qv_commons/platform/desktop/wheel.h"

namespace qv_commons::desktop {

namespace {

constexpr int kWheelPadding = 12;  // on both sides of a wheel's widest row
constexpr int kWidestGap = 28;     // more between the wheels would tear them apart
constexpr int kSmallestPickerWidth = 240;
constexpr int kSmallestFont = 10;
constexpr double kBandRadius = 10;
constexpr double kBandOpacity = 0.07;

int sumOf(const std::array<int, 3>& widths) {
  return std::accumulate(widths.begin(), widths.end(), 0);
}

}  // namespace

WheelDatePicker::WheelDatePicker(const IcuCalendar& calendar, QWidget* parent)
    : QWidget(parent), date_(calendar) {
  for (std::size_t place = 0; place < wheels_.size(); ++place) {
    const DateField field = date_.order()[place];
    auto* wheel = new Wheel(date_, field, this);
    connect(wheel, &Wheel::turned, this,
            [this, field](int row) { change([&] { date_.choose(field, row); }); });
    connect(wheel, &Wheel::typed, this,
            [this, field](int number) { change([&] { date_.type(field, number); }); });
    wheels_[place] = wheel;
  }
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void WheelDatePicker::setDate(Instant date) {
  date_.setDate(date);
  rearrange();
}

void WheelDatePicker::setMaximumDate(std::optional<Instant> maximum) {
  date_.setMaximumDate(maximum);
  rearrange();
}

QSize WheelDatePicker::sizeHint() const {
  return {kSmallestPickerWidth, Wheel::heightFor(font())};
}

QSize WheelDatePicker::minimumSizeHint() const {
  return sizeHint();
}

void WheelDatePicker::change(const std::function<void()>& change) {
  const Instant before = date_.date();
  std::array<QString, 3> textsBefore;
  std::transform(wheels_.begin(), wheels_.end(), textsBefore.begin(),
                 [](const Wheel* wheel) { return wheel->chosenText(); });
  change();
  for (std::size_t place = 0; place < wheels_.size(); ++place) {
    wheels_[place]->update();
    if (wheels_[place]->chosenText() != textsBefore[place]) {
      reportTurn(*wheels_[place], textsBefore[place]);
    }
  }
  if (date_.date() != before) emit dateChanged();
}

void WheelDatePicker::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(kBandOpacity);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::WindowText));
  QRectF band(0, 0, width(), Wheel::rowHeightFor(wheels_.front()->font()));
  band.moveCenter(QRectF(rect()).center());
  painter.drawRoundedRect(band, kBandRadius, kBandRadius);
}

void WheelDatePicker::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void WheelDatePicker::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
    rearrange();
  }
}

// Where a size is still to come, that arranges the wheels.
void WheelDatePicker::rearrange() {
  if (!testAttribute(Qt::WA_PendingResizeEvent)) arrange();
}

// Side by side in the middle, in the widest form of the months for which there is room.
void WheelDatePicker::arrange() {
  std::array<int, 3> widths{};
  const QFont font = fitFont(widths);
  const int gap = std::clamp((width() - sumOf(widths)) / 4, 0, kWidestGap);
  int left = (width() - sumOf(widths) - 2 * gap) / 2;
  for (std::size_t place = 0; place < wheels_.size(); ++place) {
    const QRect leading(left, 0, widths[place], height());
    wheels_[place]->setFont(font);
    wheels_[place]->setGeometry(QStyle::visualRect(layoutDirection(), rect(), leading));
    wheels_[place]->update();
    left += widths[place] + gap;
  }
}

QFont WheelDatePicker::fitFont(std::array<int, 3>& widths) {
  QFont fitting = font();
  for (;;) {
    for (const MonthForm form : {MonthForm::full, MonthForm::abbreviated, MonthForm::number}) {
      widths = widthsOfWheels(fitting, form);
      for (Wheel* wheel : wheels_) wheel->setMonthForm(form);
      if (sumOf(widths) <= width()) return fitting;
    }
    const int smaller = QFontInfo(fitting).pixelSize() - 1;
    if (smaller < kSmallestFont) return fitting;
    fitting.setPixelSize(smaller);
  }
}

std::array<int, 3> WheelDatePicker::widthsOfWheels(const QFont& font, MonthForm form) const {
  std::array<int, 3> widths{};
  std::transform(wheels_.begin(), wheels_.end(), widths.begin(), [&](const Wheel* wheel) {
    return wheel->widthOfRows(font, form) + 2 * kWheelPadding;
  });
  return widths;
}

}  // namespace qv_commons::desktop
