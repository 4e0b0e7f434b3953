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

FileContents MemoryFiles::read(const FileLocation& location) const {
  record_.add("files.read ", location);
  const auto found = files.find(location);
  return found == files.end() ? FileContents{std::nullopt, "no such file"} : found->second;
}

void MemoryConsole::print(std::string_view line) {
  record_.add("console.print ", quoted(line));
  lines.emplace_back(line);
}

std::string MemoryDevice::systemVersion() const {
  record_.add("device.systemVersion");
  return version;
}

std::string MemoryDevice::localizedModel() const {
  record_.add("device.localizedModel");
  return model;
}

std::vector<std::string> MemoryDevice::preferredLanguages() const {
  record_.add("languages.preferredLanguages");
  return languages;
}

Size MemoryDevice::bounds() const {
  record_.add("screen.bounds");
  return screenBounds;
}

UserInterfaceStyle MemoryDevice::userInterfaceStyle() const {
  record_.add("screen.userInterfaceStyle");
  return style;
}

bool MemoryDevice::isOperatingSystemAtLeastVersion(const OperatingSystemVersion& asked) const {
  record_.add("systemVersion.isAtLeast ", std::to_string(asked.majorVersion), ".",
              std::to_string(asked.minorVersion), ".", std::to_string(asked.patchVersion));
  return versionNumber >= asked;
}

double MemoryClock::timeIntervalSince1970() const {
  record_.add("clock.timeIntervalSince1970");
  return now;
}

void MemoryApplication::openURL(const URL& url) {
  record_.add("application.openURL ", url.text());
  opened.push_back(url.text());
}

}  // namespace qv_commons::memory
