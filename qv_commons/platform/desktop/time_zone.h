// The time zone of the user's settings, as an ICU identifier.
#pragma once

#include <optional>
#include <string>

namespace qv_commons::desktop {

// The zone that `tz`, the value of the variable TZ, stands for: a name ("Europe/Paris",
// ":Europe/Paris"), or the path of a zone's file (":/etc/localtime" follows the link to the
// file's name). Nothing (not set) stands for /etc/localtime. Empty, or not a zone that ICU knows:
// "UTC".
std::string timeZoneIdentifier(const std::optional<std::string>& tz);

}  // namespace qv_commons::desktop
