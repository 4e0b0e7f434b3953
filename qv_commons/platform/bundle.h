// Bundles: the folders that hold an app's or a library's particulars and files.
//
//     const qv_commons::Bundle& app = qv_commons::currentPlatform().bundles.mainBundle();
//     std::optional<std::string> identifier = app.bundleIdentifier();
//     std::optional<qv_commons::FileLocation> words = app.URLForResource("words", "json");
//
// Main thread only.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace qv_commons {

// Where a file is, in the adapter's own form (a path on the desktop, a URL's text on iOS). Only
// ever handed back to the adapter that gave it.
using FileLocation = std::string;

// A value of another type than those the library tells apart: a list, a dictionary, a date.
struct OtherObject {
  friend bool operator==(OtherObject, OtherObject) = default;
};

// A value of an info dictionary; `std::monostate` where the key is absent.
using InfoDictionaryValue =
    std::variant<std::monostate, std::string, std::int64_t, double, bool, OtherObject>;

class Bundle {
 public:
  virtual ~Bundle() = default;

  // The value under `key` with the type it has; never converted.
  virtual InfoDictionaryValue objectForInfoDictionaryKey(std::string_view key) const = 0;

  // Nothing where the bundle has no identifier.
  virtual std::optional<std::string> bundleIdentifier() const = 0;

  // Where the store's receipt would be; nothing where the platform names no place. The file need
  // not exist.
  virtual std::optional<FileLocation> appStoreReceiptURL() const = 0;

  // Where the bundle's resource `name` with that extension (without the dot) is; nothing where it
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

  // The bundle at `location`; null where it can't be opened.
  virtual std::shared_ptr<Bundle> bundleWithURL(const FileLocation& location) const = 0;
};

}  // namespace qv_commons
