// The age gate's part of the tour: whole lives of users, each start in a process of its own.
#pragma once

#include "qv_commons/platform/desktop/desktop_platform.h"

#include "examples/desktop_host/options.h"
#include "examples/desktop_host/stage.h"

namespace host {

// Starts this program again for each start of each life: one of an adult and one of a child, light
// and dark, or the one whose date of birth was given.
void tourAgeGate(Stage& stage, const Options& options);

// Plays one start, in the process that was started for it: "leave" sees the gate and goes,
// "confirm" picks the date and confirms, "return" just comes back. The last line that it notes is
// "age gate: asked", "age gate: allowed" or "age gate: refused".
void playAgeGateStart(Stage& stage, const Options& options,
                      const qv_commons::desktop::DesktopSettings& settings);

}  // namespace host
