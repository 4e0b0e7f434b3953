// Bundles: the folders that hold an app's or a library's information and files.
//
//     const qv_commons::Bundle& app = qv_commons::currentPlatform().bundles.mainBundle();
//     std::optional<std::string> identifier = app.bundleIdentifier();
//     std::optional<qv_commons::FileLocation> words = app.URLForResource("words", "json");
//
// Main thread only.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qv_commons {

// Where a file is, in the adapter's own form (a path on the desktop, a URL's text on iOS). Only
// ever handed back to the adapter that gave it.
using FileLocation = std::string;

struct FileContents {
  std::optional<std::string> bytes;  // the whole file; std::nullopt if it could not be read
  std::string errorDescription;      // why not, in the platform's words; empty on success
};

class Bundle {
 public:
  virtual ~Bundle() = default;

  // The text under `key` of the info dictionary, as it is; std::nullopt if there is no value or it
  // is no text: a number is not converted.
  virtual std::optional<std::string> textForInfoDictionaryKey(std::string_view key) const = 0;

  // std::nullopt if the bundle has no identifier.
  virtual std::optional<std::string> bundleIdentifier() const = 0;

  // Where the store's receipt would be; std::nullopt if the platform has no location for it. The
  // file need not exist.
  virtual std::optional<FileLocation> appStoreReceiptURL() const = 0;

  // Where the bundle's resource `name` with that extension (without the dot) is; std::nullopt if it
  // has none.
  virtual std::optional<FileLocation> URLForResource(std::string_view name,
                                                     std::string_view extension) const = 0;
};

class Bundles {
 public:
  virtual ~Bundles() = default;

  // The host app's bundle; the same object at every call.
  virtual const Bundle& mainBundle() const = 0;

  // The bundle that holds the library's own code; the same object at every call.
  virtual const Bundle& libraryBundle() const = 0;

  // The bundle at `location`; null if it can't be opened.
  virtual std::shared_ptr<Bundle> bundleWithURL(const FileLocation& location) const = 0;

  // The whole file at `location`. A folder, a missing or an unreadable file gives no bytes and a
  // description.
  virtual FileContents read(const FileLocation& location) const = 0;
};

}  // namespace qv_commons
