// Bundles that are folders with an Info.plist.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/desktop/desktop_context.h"
#include "qv_commons/platform/desktop/property_list.h"

namespace qv_commons::desktop {

class DesktopBundle final : public Bundle {
 public:
  // Whether a folder without Info.plist is reported; a resource bundle needs none.
  enum class InfoPlist : std::uint8_t { expected, optional };

  // Reads Info.plist in `directory`, any bytes that name a folder. One that is missing or damaged
  // leaves the bundle without values, and `context` is told. An empty name stands for no folder.
  DesktopBundle(std::string directory, const DesktopContext& context,
                InfoPlist infoPlist = InfoPlist::expected);

  std::optional<std::string> textForInfoDictionaryKey(std::string_view key) const override;
  std::optional<std::string> bundleIdentifier() const override;
  std::optional<FileLocation> appStoreReceiptURL() const override;
  std::optional<FileLocation> URLForResource(std::string_view name,
                                             std::string_view extension) const override;

 private:
  std::string directory_;
  InfoTexts info_;
};

// The folders in which the library's resource bundle may be: no values, files alone.
class LibraryBundle final : public Bundle {
 public:
  // The host's setting of that name.
  explicit LibraryBundle(std::string resourceDirectory)
      : resourceDirectory_(std::move(resourceDirectory)) {}

  std::optional<std::string> textForInfoDictionaryKey(std::string_view) const override {
    return std::nullopt;
  }
  std::optional<std::string> bundleIdentifier() const override { return std::nullopt; }
  std::optional<FileLocation> appStoreReceiptURL() const override { return std::nullopt; }
  std::optional<FileLocation> URLForResource(std::string_view name,
                                             std::string_view extension) const override;

 private:
  std::string resourceDirectory_;
};

class DesktopBundles final : public Bundles {
 public:
  explicit DesktopBundles(const DesktopContext& context)
      : context_(context),
        main_(context.settings.bundleDirectory, context),
        library_(context.settings.resourceDirectory) {}

  const Bundle& mainBundle() const override { return main_; }
  const Bundle& libraryBundle() const override { return library_; }
  std::shared_ptr<Bundle> bundleWithURL(const FileLocation& location) const override;
  FileContents read(const FileLocation& location) const override;  // any thread

 private:
  const DesktopContext& context_;
  DesktopBundle main_;
  LibraryBundle library_;
};

}  // namespace qv_commons::desktop
