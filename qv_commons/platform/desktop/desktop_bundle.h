// Bundles that are folders with an Info.plist.
#pragma once

#include <map>
#include <string>

#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/desktop/desktop_context.h"

namespace qv_commons::desktop {

using InfoDictionary = std::map<std::string, InfoDictionaryValue, std::less<>>;

// The top level of a property list, XML or binary; nothing where the bytes are none, or hold
// anything but a dictionary.
std::optional<InfoDictionary> parseInfoDictionary(std::string_view bytes);

class DesktopBundle final : public Bundle {
 public:
  // Reads Info.plist in `directory`, any bytes that name a folder. One that is missing or damaged
  // leaves the bundle without values, and `context` is told. An empty name stands for no folder.
  DesktopBundle(std::string directory, const DesktopContext& context);

  InfoDictionaryValue objectForInfoDictionaryKey(std::string_view key) const override;
  std::optional<std::string> bundleIdentifier() const override;
  std::optional<FileLocation> appStoreReceiptURL() const override;

 private:
  std::string directory_;
  InfoDictionary info_;
};

class DesktopBundles final : public Bundles {
 public:
  explicit DesktopBundles(const DesktopContext& context)
      : main_(context.settings.bundleDirectory, context) {}

  const Bundle& mainBundle() const override { return main_; }

 private:
  DesktopBundle main_;
};

}  // namespace qv_commons::desktop
