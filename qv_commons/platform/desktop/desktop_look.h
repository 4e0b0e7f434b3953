// Whether the desktop is light or dark, as its settings portal tells it.
#pragma once

#include <memory>

#include "qv_commons/platform/user_interface_style.h"

class QDBusPendingCallWatcher;

namespace qv_commons::desktop {

// Asks the portal once, when it is made, and never waits for the answer: until that is there, and
// where there is none, the look of the application's palette counts. Windows that are open then
// learn of it as of a new palette. Main thread only.
class DesktopLook {
 public:
  DesktopLook();
  ~DesktopLook();
  DesktopLook(const DesktopLook&) = delete;
  DesktopLook& operator=(const DesktopLook&) = delete;

  // `setting`, unless that is unspecified.
  UserInterfaceStyle style(UserInterfaceStyle setting) const;

 private:
  UserInterfaceStyle toldStyle() const;

  std::unique_ptr<QDBusPendingCallWatcher> answer_;  // null where nobody was asked
};

}  // namespace qv_commons::desktop
