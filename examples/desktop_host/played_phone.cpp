#include "examples/desktop_host/played_phone.h"

namespace host {

PlayedPhone::PlayedPhone(const qv_commons::Platform& desktop)
    : desktop_(desktop),
      platform_{.bundles = desktop.bundles,
                .device = *this,
                .clock = desktop.clock,
                .calendar = desktop.calendar,
                .userDefaults = desktop.userDefaults,
                .application = *this,
                .viewControllers = desktop.viewControllers} {}

}  // namespace host
