// The scripted tour of the host app: real widgets, real mail to a server of its own on loopback.
#pragma once

#include "qv_commons/platform/desktop/desktop_platform.h"

#include "examples/desktop_host/options.h"

namespace host {

// Leaves in the tour's directory: a PNG of every screen, the sent message as support-mail.eml, and
// transcript.txt. The result is the process's exit code: 0 where everything went as it should.
int runTour(const Options& options, qv_commons::desktop::DesktopSettings settings);

}  // namespace host
