// The platform's alert: a short text with buttons over a screen. Main thread only.
#pragma once

#include <cstdint>
#include <string>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

// The numeric values of both are the platform's own.
enum class AlertStyle : std::int8_t { actionSheet = 0, alert = 1 };
enum class AlertActionStyle : std::int8_t { standard = 0, cancel = 1, destructive = 2 };

class AlertController : public ViewController {
 public:
  AlertController() : ViewController(ViewControllerKind::alert) {}

  // Adds a button after those that are there. A tap dismisses the alert, then runs `handler`, if
  // present.
  virtual void addAction(std::string title, AlertActionStyle style, Completion handler) = 0;
};

}  // namespace qv_commons
