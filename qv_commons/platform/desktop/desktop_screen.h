// The primary screen, and whether the desktop is light or dark.
#pragma once

#include "qv_commons/platform/screen.h"

namespace qv_commons::desktop {

// `setting`, or where that is unspecified what the desktop's settings portal answers within a
// quarter of a second, or else the look of the application's palette.
UserInterfaceStyle currentUserInterfaceStyle(UserInterfaceStyle setting);

class DesktopScreen final : public Screen {
 public:
  explicit DesktopScreen(UserInterfaceStyle setting) : setting_(setting) {}

  Size bounds() const override;
  UserInterfaceStyle userInterfaceStyle() const override {
    return currentUserInterfaceStyle(setting_);
  }

 private:
  UserInterfaceStyle setting_;
};

}  // namespace qv_commons::desktop
