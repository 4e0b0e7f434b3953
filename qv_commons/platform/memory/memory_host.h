// What the memory adapter answers for the host app and its device: plain values to set.
//
//     qv_commons::memory::MemoryPlatform platform;
//     platform.mainBundle().info["CFBundleDisplayName"] = "Notes";
//     platform.device().model = "iPad";
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/application.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/device.h"
#include "qv_commons/platform/memory/memory_layout.h"
#include "qv_commons/platform/memory/record.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryBundle final : public Bundle {
 public:
  // `name` stands for the bundle in the record's lines.
  MemoryBundle(Record& record, std::string name) : record_(record), name_(std::move(name)) {}

  const std::string& name() const { return name_; }

  std::map<std::string, std::string, std::less<>> info;  // its texts
  std::optional<std::string> identifier;
  std::optional<FileLocation> receiptLocation;
  std::map<std::string, FileLocation, std::less<>> resources;  // by name and extension: "a.json"
  std::map<std::string, MemoryLayout, std::less<>> layouts;    // by name

  std::optional<std::string> textForInfoDictionaryKey(std::string_view key) const override;
  std::optional<std::string> bundleIdentifier() const override;
  std::optional<FileLocation> appStoreReceiptURL() const override;
  std::optional<FileLocation> URLForResource(std::string_view name,
                                             std::string_view extension) const override;

 private:
  Record& record_;
  std::string name_;
};

class QV_COMMONS_EXPORT MemoryBundles final : public Bundles {
 public:
  // At first the library's bundle has the resource bundle, which holds the layouts of both screens.
  explicit MemoryBundles(Record& record);

  // By location: the bundles that can be opened.
  std::map<FileLocation, std::shared_ptr<MemoryBundle>, std::less<>> openable;

  // By location; a file without bytes can't be read, with its description. A location that is not
  // here gives "no such file".
  std::map<FileLocation, FileContents, std::less<>> files;

  MemoryBundle& main() { return main_; }
  MemoryBundle& library() { return library_; }
  MemoryBundle& resources() { return *resources_; }

  const Bundle& mainBundle() const override { return main_; }
  const Bundle& libraryBundle() const override { return library_; }
  std::shared_ptr<Bundle> bundleWithURL(const FileLocation& location) const override;
  FileContents read(const FileLocation& location) const override;

 private:
  Record& record_;
  MemoryBundle main_;
  MemoryBundle library_;
  std::shared_ptr<MemoryBundle> resources_;
};

class QV_COMMONS_EXPORT MemoryDevice final : public Device {
 public:
  explicit MemoryDevice(Record& record) : record_(record) {}

  std::string version = "14.4";  // begins with the major version's number
  std::string model = "iPhone";
  std::vector<std::string> languages = {"en-US"};
  Size screenSize = {375, 667};
  UserInterfaceStyle style = UserInterfaceStyle::light;

  std::string localizedModel() const override;
  std::string systemVersion() const override;
  bool isSystemVersionAtLeast(int major) const override;
  std::vector<std::string> preferredLanguages() const override;
  Size screenBounds() const override;
  UserInterfaceStyle userInterfaceStyle() const override;

 private:
  Record& record_;
};

class QV_COMMONS_EXPORT MemoryClock final : public Clock {
 public:
  explicit MemoryClock(Record& record) : record_(record) {}

  Instant time = instantAt(1700000000);  // 2023-11-14 22:13:20 UTC

  Instant now() const override;

 private:
  Record& record_;
};

class QV_COMMONS_EXPORT MemoryApplication final : public Application {
 public:
  explicit MemoryApplication(Record& record) : record_(record) {}

  std::vector<std::string> printed;  // the lines, oldest first
  std::vector<std::string> opened;   // the links' texts, likewise

  void print(std::string_view line) override;
  void openURL(const URL& url) override;

 private:
  Record& record_;
};

}  // namespace qv_commons::memory
