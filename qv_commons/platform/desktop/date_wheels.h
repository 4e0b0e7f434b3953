// A date as three wheels show it: what stands on them, in the user's calendar and order, and what
// turning one of them makes of the date.
//
// No widget, no painting. Rows are counted from 0; a row that can't be chosen because of the
// maximum is not there at all. Main thread only.
#pragma once

#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <unicode/smpdtfmt.h>
#include <vector>

#include "qv_commons/platform/desktop/icu_calendar.h"

namespace qv_commons::desktop {

enum class DateField : std::uint8_t { year, month, day };

// How the months are written, from the widest form to the narrowest.
enum class MonthForm : std::uint8_t { full, abbreviated, number };

class DateWheels {
 public:
  // `calendar` outlives the wheels. The date is 1970-01-01 00:00:00 UTC until it is set.
  explicit DateWheels(const IcuCalendar& calendar);

  // The years on offer reach from 150 years before `date` up to the maximum,
  // or to 150 years after it where there is none. A date beyond the maximum becomes the maximum;
  // one that is not a number, or further away than the calendar goes, changes nothing.
  void setDate(Instant date);

  // Nothing, or what is no date: no maximum.
  void setMaximumDate(std::optional<Instant> maximum);

  Instant date() const { return date_; }

  // The fields in the order in which the locale writes them, for example month, day, year.
  const std::array<DateField, 3>& order() const { return order_; }

  int rows(DateField field) const;
  int row(DateField field) const;  // the one that is chosen

  // Turns a wheel; a row that isn't there counts as the nearest. The other two stay where they are
  // unless the month is shorter or the maximum is passed. The time of day stays as it was set.
  void choose(DateField field, int row);

  // Turns a wheel to the number that was typed; nothing happens if there never is such a row. A day
  // that the month lacks, or a month that the year lacks, is kept: the nearest one is shown until
  // the fields that decide on it are typed too.
  void type(DateField field, int number);

  // As it is written in the locale's language and digits, for example "February", "29" or "2000".
  QString text(DateField field, int row, MonthForm form = MonthForm::full) const;

  // What is typed to get there: the day of the month, the month's place in the year, or the year.
  int number(DateField field, int row) const;

  // What the wheel is called in the locale's language, for example "month". Takes as long as
  // making the wheels.
  QString name(DateField field) const;

 private:
  struct Month {
    int identity;  // its number, and whether it is a leap month
    double start;  // noon of its first day, in milliseconds since 1970
    int days;
  };
  struct Day {
    int year = 0;
    int month = 0;  // its place in the year, from 0
    int day = 1;
    std::vector<Month> months;  // of the year
  };

  void makeFormats();
  std::optional<int> yearRow(int number) const;
  void turn(DateField field, int row);
  std::vector<Month> monthsOf(int year) const;
  Day dayOf(Instant date) const;
  double millisecondsOf(const Month& month, int day) const;
  double millisecondsOfRow(DateField field, int row) const;
  void moveTo(Instant date);
  QString format(const icu::SimpleDateFormat& format, double milliseconds) const;

  const IcuCalendar& calendar_;
  std::array<DateField, 3> order_{};
  std::unique_ptr<icu::SimpleDateFormat> yearFormat_;
  std::unique_ptr<icu::SimpleDateFormat> dayFormat_;
  std::array<std::unique_ptr<icu::SimpleDateFormat>, 3> monthFormats_;  // by MonthForm

  Instant date_;
  std::optional<Instant> maximum_;
  Day day_;            // of `date_`, so that painting asks the calendar less
  Day maximumDay_;     // of `maximum_`
  int firstYear_ = 0;  // on offer
  int lastYear_ = 0;
  int millisecondOfDay_ = 0;
  std::array<std::optional<int>, 3> typed_;  // by DateField, until a wheel is turned
};

}  // namespace qv_commons::desktop
