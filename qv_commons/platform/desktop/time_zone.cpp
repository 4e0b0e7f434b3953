#include "qv_commons/platform/desktop/time_zone.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace qv_commons::desktop {

namespace {

namespace fs = std::filesystem;

constexpr const char* kUtc = "UTC";
constexpr const char* kLocalTime = "/etc/localtime";
constexpr const char* kZones = "/usr/share/zoneinfo";

std::string bytesOf(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool isKnown(const std::string& name) {
  const std::unique_ptr<icu::TimeZone> zone(
      icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)));
  return *zone != icu::TimeZone::getUnknown();
}

// "/usr/share/zoneinfo/Europe/Paris" is named "Europe/Paris"; "" elsewhere.
std::string nameByPath(const std::string& file) {
  constexpr std::string_view kFolder = "/zoneinfo/";
  const std::size_t folder = file.find(kFolder);
  if (folder == std::string::npos) return "";
  std::string name = file.substr(folder + kFolder.size());
  for (const std::string_view variant : {"posix/", "right/"}) {
    if (name.starts_with(variant)) name.erase(0, variant.size());
  }
  return name;
}

// The system's zone with the same bytes.
std::string nameByContent(const std::string& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return "";
  const std::uintmax_t size = fs::file_size(file, error);
  const std::string bytes = bytesOf(file);
  for (auto entry = fs::recursive_directory_iterator(kZones, error);
       entry != fs::recursive_directory_iterator(); entry.increment(error)) {
    if (error) return "";
    if (!entry->is_regular_file(error) || entry->file_size(error) != size) continue;
    std::string name = nameByPath(entry->path());
    if (isKnown(name) && bytesOf(entry->path()) == bytes) return name;
  }
  return "";
}

std::string nameOfZoneFile(const std::string& path) {
  std::error_code error;
  const std::string file = fs::canonical(path, error);
  if (error) return "";
  const std::string name = nameByPath(file);
  return name.empty() ? nameByContent(file) : name;
}

std::optional<std::string> environmentZone() {
  const char* tz = std::getenv("TZ");
  return tz == nullptr ? std::nullopt : std::optional<std::string>(tz);
}

// Something else whenever the system's zone may have become another one.
std::string stateOf(const std::optional<std::string>& tz) {
  if (tz) return "TZ=" + *tz;
  struct stat status = {};
  if (::lstat(kLocalTime, &status) != 0) return "none";
  return std::to_string(status.st_ino) + " " + std::to_string(status.st_mtim.tv_sec) + "." +
         std::to_string(status.st_mtim.tv_nsec);
}

}  // namespace

std::optional<std::string> timeZoneIdentifier(const std::optional<std::string>& tz) {
  std::string name = tz.value_or(kLocalTime);
  if (name.starts_with(':')) name.erase(0, 1);
  if (name.empty()) return kUtc;
  if (name.starts_with('/')) name = nameOfZoneFile(name);
  return isKnown(name) ? std::optional(name) : std::nullopt;
}

CurrentTimeZone::CurrentTimeZone(std::string name, ErrorHandler report)
    : name_(std::move(name)), report_(std::move(report)) {}

std::shared_ptr<const icu::TimeZone> CurrentTimeZone::get() const {
  const std::lock_guard lock(mutex_);
  const std::optional<std::string> tz = name_.empty() ? environmentZone() : name_;
  std::string state = stateOf(tz);
  if (zone_ != nullptr && state == state_) return zone_;
  const std::optional<std::string> identifier = timeZoneIdentifier(tz);
  if (!identifier && report_) {
    report_("The time zone " + tz.value_or(kLocalTime) +
            " is not known by name; dates are reckoned in UTC.");
  }
  state_ = std::move(state);
  zone_.reset(
      icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(identifier.value_or(kUtc))));
  return zone_;
}

}  // namespace qv_commons::desktop
