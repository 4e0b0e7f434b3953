#include "qv_commons/platform/desktop/time_zone.h"

#include <filesystem>
#include <memory>
#include <system_error>
#include <unicode/timezone.h>

namespace qv_commons::desktop {

namespace {

constexpr const char* kUtc = "UTC";

// "/usr/share/zoneinfo/Europe/Paris" is named "Europe/Paris".
std::string nameOfZoneFile(const std::string& path) {
  std::error_code error;
  const std::string file = std::filesystem::canonical(path, error);
  constexpr std::string_view kFolder = "/zoneinfo/";
  const std::size_t folder = file.find(kFolder);
  if (error || folder == std::string::npos) return "";
  std::string name = file.substr(folder + kFolder.size());
  for (const std::string_view variant : {"posix/", "right/"}) {
    if (name.starts_with(variant)) name.erase(0, variant.size());
  }
  return name;
}

bool isKnown(const std::string& name) {
  const std::unique_ptr<icu::TimeZone> zone(
      icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)));
  return *zone != icu::TimeZone::getUnknown();
}

}  // namespace

std::string timeZoneIdentifier(const std::optional<std::string>& tz) {
  std::string name = tz.value_or("/etc/localtime");
  if (name.starts_with(':')) name.erase(0, 1);
  if (name.starts_with('/')) name = nameOfZoneFile(name);
  return isKnown(name) ? name : kUtc;
}

}  // namespace qv_commons::desktop
