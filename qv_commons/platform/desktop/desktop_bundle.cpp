#include "qv_commons/platform/desktop/desktop_bundle.h"

#include <filesystem>
#include <memory>
#include <utility>

#include "qv_commons/platform/desktop/regular_file.h"
#include "qv_commons/platform/desktop/resource_search.h"

namespace qv_commons::desktop {

DesktopBundle::DesktopBundle(std::string directory, const DesktopContext& context,
                             InfoPlist infoPlist)
    : directory_(std::move(directory)) {
  if (directory_.empty()) return;
  const std::string location = directory_ + "/Info.plist";
  std::error_code ignored;
  if (infoPlist == InfoPlist::optional && !std::filesystem::exists(location, ignored)) return;
  const FileContents file = readRegularFile(location);
  if (!file.bytes) {
    context.reportError(location + ": " + file.errorDescription);
    return;
  }
  std::optional<InfoTexts> info = parseInfoTexts(*file.bytes);
  if (!info) {
    context.reportError(location + ": not a property list with a dictionary");
    return;
  }
  info_ = *std::move(info);
}

std::optional<std::string> DesktopBundle::textForInfoDictionaryKey(std::string_view key) const {
  const auto found = info_.find(key);
  return found == info_.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::string> DesktopBundle::bundleIdentifier() const {
  return textForInfoDictionaryKey("CFBundleIdentifier");
}

std::optional<FileLocation> DesktopBundle::appStoreReceiptURL() const {
  const std::string folder = directory_ + "/StoreKit";
  std::error_code ignored;
  if (directory_.empty() || !std::filesystem::is_directory(folder, ignored)) return std::nullopt;
  return folder + "/receipt";
}

std::optional<FileLocation> DesktopBundle::URLForResource(std::string_view name,
                                                          std::string_view extension) const {
  return findResource(directory_, name, extension);
}

std::optional<FileLocation> LibraryBundle::URLForResource(std::string_view name,
                                                          std::string_view extension) const {
  return findResource(resourceFolders(resourceDirectory_), name, extension);
}

std::shared_ptr<Bundle> DesktopBundles::bundleWithURL(const FileLocation& location) const {
  std::error_code ignored;
  if (!std::filesystem::is_directory(location, ignored)) return nullptr;
  return std::make_shared<DesktopBundle>(location, context_, DesktopBundle::InfoPlist::optional);
}

FileContents DesktopBundles::read(const FileLocation& location) const {
  return readRegularFile(location);
}

}  // namespace qv_commons::desktop
