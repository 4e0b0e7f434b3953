#include "qv_commons/platform/desktop/desktop_bundle.h"

#include <cstdlib>
#include <filesystem>
#include <limits>
#include <memory>
#include <plist/plist.h>
#include <type_traits>
#include <utility>

#include "qv_commons/platform/desktop/regular_file.h"
#include "qv_commons/platform/desktop/resource_search.h"

namespace qv_commons::desktop {
namespace {

struct Free {
  void operator()(char* memory) const { std::free(memory); }
};

using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, decltype(&plist_free)>;

InfoDictionaryValue valueOf(plist_t node) {
  switch (plist_get_node_type(node)) {
    case PLIST_STRING: {
      std::uint64_t length = 0;
      const char* text = plist_get_string_ptr(node, &length);
      return std::string(text, length);
    }
    case PLIST_UINT: {  // negative numbers too, as their two's complement
      std::uint64_t number = 0;
      plist_get_uint_val(node, &number);
      return static_cast<std::int64_t>(number);
    }
    case PLIST_REAL: {
      double number = 0;
      plist_get_real_val(node, &number);
      return number;
    }
    case PLIST_BOOLEAN: {
      std::uint8_t truth = 0;
      plist_get_bool_val(node, &truth);
      return truth != 0;
    }
    default:
      return OtherObject{};
  }
}

}  // namespace

std::optional<InfoDictionary> parseInfoDictionary(std::string_view bytes) {
  if (bytes.size() > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  plist_t parsed = nullptr;
  const auto size = static_cast<std::uint32_t>(bytes.size());
  // The one function for both forms takes other parameters from release to release.
  const auto read = plist_is_binary(bytes.data(), size) != 0 ? plist_from_bin : plist_from_xml;
  read(bytes.data(), size, &parsed);
  const Node root(parsed, &plist_free);
  if (root == nullptr || plist_get_node_type(root.get()) != PLIST_DICT) return std::nullopt;

  plist_dict_iter started = nullptr;
  plist_dict_new_iter(root.get(), &started);
  const std::unique_ptr<char, Free> iterator(static_cast<char*>(started));
  InfoDictionary info;
  for (;;) {
    char* name = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(root.get(), iterator.get(), &name, &value);
    const std::unique_ptr<char, Free> key(name);
    if (key == nullptr || value == nullptr) return info;
    info.insert_or_assign(key.get(), valueOf(value));
  }
}

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
  std::optional<InfoDictionary> info = parseInfoDictionary(*file.bytes);
  if (!info) {
    context.reportError(location + ": not a property list with a dictionary");
    return;
  }
  info_ = *std::move(info);
}

InfoDictionaryValue DesktopBundle::objectForInfoDictionaryKey(std::string_view key) const {
  const auto found = info_.find(key);
  return found == info_.end() ? InfoDictionaryValue() : found->second;
}

std::optional<std::string> DesktopBundle::bundleIdentifier() const {
  const InfoDictionaryValue identifier = objectForInfoDictionaryKey("CFBundleIdentifier");
  const auto* text = std::get_if<std::string>(&identifier);
  return text == nullptr ? std::nullopt : std::optional(*text);
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
