// Alerts as small windows.
#pragma once

#include "qv_commons/platform/alert.h"
#include "qv_commons/platform/desktop/desktop_context.h"

namespace qv_commons::desktop {

class DesktopAlerts final : public Alerts {
 public:
  explicit DesktopAlerts(SharedContext context) : context_(std::move(context)) {}

  // Both styles look alike. Escape and the window's close button stand for the cancel button, or
  // for the only one; where there is neither they do nothing.
  std::shared_ptr<AlertController> makeAlertController(std::string title, std::string message,
                                                       AlertStyle preferredStyle) override;

 private:
  SharedContext context_;
};

}  // namespace qv_commons::desktop
