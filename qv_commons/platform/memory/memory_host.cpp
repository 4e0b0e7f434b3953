#include "qv_commons/platform/memory/memory_host.h"

#include <charconv>

#include "qv_commons/support/url.h"

namespace qv_commons::memory {

std::optional<std::string> MemoryBundle::textForInfoDictionaryKey(std::string_view key) const {
  record_.add(name_, ".textForInfoDictionaryKey ", key);
  const auto found = info.find(key);
  return found == info.end() ? std::nullopt : std::optional(found->second);
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

std::string MemoryDevice::localizedModel() const {
  record_.add("device.localizedModel");
  return model;
}

std::string MemoryDevice::systemVersion() const {
  record_.add("device.systemVersion");
  return version;
}

bool MemoryDevice::isSystemVersionAtLeast(int major) const {
  record_.add("device.isSystemVersionAtLeast ", std::to_string(major));
  int own = 0;
  std::from_chars(version.data(), version.data() + version.size(), own);
  return own >= major;
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

void MemoryApplication::print(std::string_view line) {
  record_.add("application.print ", inQuotes(line));
  printed.emplace_back(line);
}

void MemoryApplication::openURL(const URL& url) {
  record_.add("application.openURL ", url.text());
  opened.push_back(url.text());
}

}  // namespace qv_commons::memory
