// Bundles and files by NSBundle and NSData. A location is the text of its file URL.
#pragma once

#import <Foundation/Foundation.h>

#include "qv_commons/platform/bundle.h"

namespace qv_commons::uikit {

class UIKitBundle final : public Bundle {
 public:
  explicit UIKitBundle(NSBundle* bundle) : bundle_(bundle) {}

  NSBundle* nsBundle() const { return bundle_; }

  std::optional<std::string> textForInfoDictionaryKey(std::string_view key) const override;
  std::optional<std::string> bundleIdentifier() const override;
  std::optional<FileLocation> appStoreReceiptURL() const override;
  std::optional<FileLocation> URLForResource(std::string_view name,
                                             std::string_view extension) const override;

 private:
  NSBundle* bundle_;
};

class UIKitBundles final : public Bundles {
 public:
  const Bundle& mainBundle() const override;
  const Bundle& libraryBundle() const override;
  std::shared_ptr<Bundle> bundleWithURL(const FileLocation& location) const override;
  FileContents read(const FileLocation& location) const override;
};

// nil for null.
NSBundle* toNSBundle(const Bundle* bundle);

}  // namespace qv_commons::uikit
