// Whether the desktop is light or dark.
#pragma once

#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons::desktop {

// `setting`, or if that is unspecified what the desktop's settings portal answers within a quarter
// of a second, or else the look of the application's palette.
UserInterfaceStyle currentUserInterfaceStyle(UserInterfaceStyle setting);

}  // namespace qv_commons::desktop
