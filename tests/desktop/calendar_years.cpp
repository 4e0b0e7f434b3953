// Answers lines "locale zone from to" with the whole years between, one a line.
#include <iostream>
#include <string>

#include "qv_commons/platform/desktop/icu_calendar.h"

int main() {
  std::string locale;
  std::string zone;
  double from = 0;
  double to = 0;
  while (std::cin >> locale >> zone >> from >> to) {
    const qv_commons::desktop::IcuCalendar calendar({locale, zone});
    std::cout
        << calendar.yearsBetween(qv_commons::instantAt(from), qv_commons::instantAt(to)).value()
        << '\n';
  }
}
