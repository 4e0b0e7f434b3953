#include "qv_commons/platform/memory/memory_host.h"

#include "qv_commons/support/url.h"

namespace qv_commons::memory {

InfoDictionaryValue MemoryBundle::objectForInfoDictionaryKey(std::string_view key) const {
  record_.add(name_, ".objectForInfoDictionaryKey ", key);
  const auto found = info.find(key);
  return found == info.end() ? InfoDictionaryValue() : found->second;
}

std::optional<std::string> MemoryBundle::bundleIdentifier() const {
  record_.add(name_, ".bundleIdentifier");
  return identifier;
}

std::optional<FileLocation> MemoryBundle::appStoreReceiptURL() const {
  record_.add(name_, ".appStoreReceiptURL");
  return receiptLocation;
}

std::optional<FileLocation> MemoryBundle::URLForResource(std::string_view name,
                                                         std::string_view extension) const {
  const std::string file = std::string(name).append(".").append(extension);
  record_.add(name_, ".URLForResource ", file);
  const auto found = resources.find(file);
  return found == resources.end() ? std::nullopt : std::optional(found->second);
}

MemoryBundles::MemoryBundles(Record& record)
    : record_(record),
      main_(record, "mainBundle"),
      library_(record, "libraryBundle"),
      resources_(std::make_shared<MemoryBundle>(record, "resourceBundle")) {
  library_.resources["QV_Commons_iOS.bundle"] = "/library/QV_Commons_iOS.bundle";
  openable["/library/QV_Commons_iOS.bundle"] = resources_;
  resources_->layouts["QV_AgeGateViewController"] = ageGateLayout();
  resources_->layouts["QV_AgeGateRefusedViewController"] = ageGateRefusedLayout();
}

std::shared_ptr<Bundle> MemoryBundles::bundleWithURL(const FileLocation& location) const {
  record_.add("bundles.bundleWithURL ", location);
  const auto found = openable.find(location);
  return found == openable.end() ? nullptr : found->second;
}

FileContents MemoryBundles::read(const FileLocation& location) const {
  record_.add("bundles.read ", location);
  const auto found = files.find(location);
  return found == files.end() ? FileContents{std::nullopt, "no such file"} : found->second;
}

void MemoryConsole::print(std::string_view line) {
  record_.add("console.print ", inQuotes(line));
  lines.emplace_back(line);
}

std::string MemoryDevice::localizedModel() const {
  record_.add("device.localizedModel");
  return model;
}

std::string MemoryDevice::systemVersion() const {
  record_.add("device.systemVersion");
  std::string text = std::to_string(version.majorVersion);
  text.append(".").append(std::to_string(version.minorVersion));
  if (version.patchVersion != 0) text.append(".").append(std::to_string(version.patchVersion));
  return text;
}

bool MemoryDevice::isOperatingSystemAtLeastVersion(const OperatingSystemVersion& asked) const {
  record_.add("device.isAtLeast ", std::to_string(asked.majorVersion), ".",
              std::to_string(asked.minorVersion), ".", std::to_string(asked.patchVersion));
  return version >= asked;
}

std::vector<std::string> MemoryDevice::preferredLanguages() const {
  record_.add("device.preferredLanguages");
  return languages;
}

Size MemoryDevice::screenBounds() const {
  record_.add("device.screenBounds");
  return screenSize;
}

UserInterfaceStyle MemoryDevice::userInterfaceStyle() const {
  record_.add("device.userInterfaceStyle");
  return style;
}

Instant MemoryClock::now() const {
  record_.add("clock.now");
  return time;
}

void MemoryApplication::openURL(const URL& url) {
  record_.add("application.openURL ", url.text());
  opened.push_back(url.text());
}

}  // namespace qv_commons::memory
