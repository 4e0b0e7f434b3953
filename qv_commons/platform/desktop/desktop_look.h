// Whether the desktop is light or dark, as its settings portal tells it.
#pragma once

#include "qv_commons/platform/desktop/portal_question.h"
#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons::desktop {

// Asks the portal once, when it is made, and never waits for the answer: until that is there, and
// where there is none, the look of the application's palette counts. Windows that are open then
// learn of it as of a new palette. Main thread only.
class DesktopLook {
 public:
  DesktopLook();

  // `setting`, unless that is unspecified.
  UserInterfaceStyle style(UserInterfaceStyle setting) const;

 private:
  UserInterfaceStyle toldStyle() const;

  PortalQuestion question_;
};

}  // namespace qv_commons::desktop
