// Bundles whose app and library are folders of a test's own, as where the library is a framework.
#pragma once

#include <fstream>
#include <map>
#include <optional>
#include <string>

#include "qv_commons/platform/platform.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"

#import "tests/uikit/temporary_folder.h"

class FolderBundles final : public qv_commons::Bundles {
 public:
  // Opened when it is first asked for: Foundation reads a bundle once.
  const qv_commons::Bundle& mainBundle() const override {
    if (!mainBundle_) mainBundle_.emplace([NSBundle bundleWithPath:main_.path()]);
    return *mainBundle_;
  }
  const qv_commons::Bundle& libraryBundle() const override {
    static const auto* const bundle =
        new qv_commons::uikit::UIKitBundle([NSBundle bundleWithPath:makeLibrary()]);
    return *bundle;
  }
  std::shared_ptr<qv_commons::Bundle> bundleWithURL(
      const qv_commons::FileLocation& location) const override {
    return qv_commons::uikit::UIKitBundles().bundleWithURL(location);
  }
  qv_commons::FileContents read(const qv_commons::FileLocation& location) const override {
    return qv_commons::uikit::UIKitBundles().read(location);
  }

  // The adapter's platform with these bundles in place of its own.
  qv_commons::Platform over(const qv_commons::Platform& adapter) {
    return {.bundles = *this,
            .device = adapter.device,
            .clock = adapter.clock,
            .calendar = adapter.calendar,
            .userDefaults = adapter.userDefaults,
            .application = adapter.application,
            .viewControllers = adapter.viewControllers};
  }

  void writeInfo(const std::map<std::string, std::string>& texts,
                 const std::map<std::string, int>& numbers,
                 const std::optional<std::string>& identifier) const {
    using qv_commons::uikit::toNSString;
    NSMutableDictionary* entries = [NSMutableDictionary dictionary];
    for (const auto& [key, text] : texts) entries[toNSString(key)] = toNSString(text);
    for (const auto& [key, number] : numbers) entries[toNSString(key)] = @(number);
    if (identifier) entries[@"CFBundleIdentifier"] = toNSString(*identifier);
    [entries writeToFile:[main_.path() stringByAppendingPathComponent:@"Info.plist"] atomically:NO];
  }

  qv_commons::FileLocation addToMainBundle(const std::string& name,
                                           const std::string& bytes) const {
    NSString* path =
        [main_.path() stringByAppendingPathComponent:qv_commons::uikit::toNSString(name)];
    std::ofstream(path.UTF8String, std::ios::binary) << bytes;
    return location(name);
  }

  // Of a file of the main bundle, which need not exist; of the bundle itself for "".
  qv_commons::FileLocation location(const std::string& name) const {
    NSString* path =
        [main_.path() stringByAppendingPathComponent:qv_commons::uikit::toNSString(name)];
    return qv_commons::uikit::toString([NSURL fileURLWithPath:path].absoluteString);
  }

 private:
  // One for all tests: gnustep-base takes a bundle for the one that it has opened already if both
  // have the same identifier.
  static NSString* makeLibrary() {
    static const TemporaryFolder library(@"QV_Commons_iOS.framework");
    NSString* name = @"QV_Commons_iOS.bundle";
    [NSFileManager.defaultManager
        copyItemAtPath:[NSBundle.mainBundle.bundlePath stringByAppendingPathComponent:name]
                toPath:[library.path() stringByAppendingPathComponent:name]
                 error:nullptr];
    return library.path();
  }

  TemporaryFolder main_{@"Main.app"};
  mutable std::optional<qv_commons::uikit::UIKitBundle> mainBundle_;
};
