#include "examples/desktop_host/played_phone.h"

namespace host {

PlayedPhone::PlayedPhone(const qv_commons::Platform& desktop)
    : desktop_(desktop),
      platform_{.bundles = desktop.bundles,
                .files = desktop.files,
                .console = desktop.console,
                .device = *this,
                .languages = *this,
                .screen = *this,
                .systemVersion = desktop.systemVersion,
                .clock = desktop.clock,
                .calendar = desktop.calendar,
                .userDefaults = desktop.userDefaults,
                .application = *this,
                .mailComposers = desktop.mailComposers,
                .alerts = desktop.alerts,
                .layoutLoader = desktop.layoutLoader} {}

}  // namespace host
