// The time zone of the user's settings.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unicode/timezone.h>

namespace qv_commons::desktop {

// ICU's identifier of the zone that `tz`, the value of the variable TZ, stands for: a name
// ("Europe/Paris", ":Europe/Paris"), or the path of a zone's file (":/etc/localtime"), be it a link
// to one of the system's or a copy. std::nullopt (not set) stands for /etc/localtime, empty for
// "UTC". std::nullopt for what is no zone that ICU knows by name, as the rules of POSIX
// ("CET-1CEST,M3.5.0,M10.5.0/3").
std::optional<std::string> timeZoneIdentifier(const std::optional<std::string>& tz);

// The zone of that name, or where it is empty the system's, as it is at each moment.
class CurrentTimeZone {
 public:
  using ErrorHandler = std::function<void(std::string)>;

  // `report` is told of what is no zone, which counts as UTC, once each time that it changes.
  CurrentTimeZone(std::string name, ErrorHandler report);

  // Any thread.
  std::shared_ptr<const icu::TimeZone> get() const;

 private:
  std::string name_;
  ErrorHandler report_;
  mutable std::mutex mutex_;
  mutable std::string state_;  // of the settings when `zone_` was made of them
  mutable std::shared_ptr<const icu::TimeZone> zone_;
};

}  // namespace qv_commons::desktop
