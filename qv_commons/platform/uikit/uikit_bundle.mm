#import "qv_commons/platform/uikit/uikit_bundle.h"

#import "qv_commons/platform/uikit/include/QV_Commons_iOS/QV_BundleFileHelper.h"
#import "qv_commons/platform/uikit/text.h"

namespace qv_commons::uikit {
namespace {

std::optional<FileLocation> toLocation(NSURL* url) {
  return toOptionalString(url.absoluteString);
}

NSURL* toNSURL(const FileLocation& location) {
  return [NSURL URLWithString:toNSString(location)];
}

}  // namespace

std::optional<std::string> UIKitBundle::textForInfoDictionaryKey(std::string_view key) const {
  id value = [bundle_ objectForInfoDictionaryKey:toNSString(key)];
  return [value isKindOfClass:[NSString class]] ? toOptionalString(value) : std::nullopt;
}

std::optional<std::string> UIKitBundle::bundleIdentifier() const {
  return toOptionalString(bundle_.bundleIdentifier);
}

std::optional<FileLocation> UIKitBundle::appStoreReceiptURL() const {
  return toLocation(bundle_.appStoreReceiptURL);
}

std::optional<FileLocation> UIKitBundle::URLForResource(std::string_view name,
                                                        std::string_view extension) const {
  return toLocation([bundle_ URLForResource:toNSString(name) withExtension:toNSString(extension)]);
}

const Bundle& UIKitBundles::mainBundle() const {
  static const auto* const bundle = new UIKitBundle(NSBundle.mainBundle);
  return *bundle;
}

const Bundle& UIKitBundles::libraryBundle() const {
  static const auto* const bundle =
      new UIKitBundle([NSBundle bundleForClass:[QV_BundleFileHelper class]]);
  return *bundle;
}

std::shared_ptr<Bundle> UIKitBundles::bundleWithURL(const FileLocation& location) const {
  NSURL* url = toNSURL(location);
  NSBundle* bundle = url == nil ? nil : [[NSBundle alloc] initWithURL:url];
  return bundle == nil ? nullptr : std::make_shared<UIKitBundle>(bundle);
}

FileContents UIKitBundles::read(const FileLocation& location) const {
  NSError* error = nil;
  NSData* data = [[NSData alloc] initWithContentsOfURL:toNSURL(location) options:0 error:&error];
  if (data == nil) return {std::nullopt, toString(error.localizedDescription)};
  return {std::string(static_cast<const char*>(data.bytes), data.length), ""};
}

NSBundle* toNSBundle(const Bundle* bundle) {
  return bundle == nullptr ? nil : static_cast<const UIKitBundle*>(bundle)->nsBundle();
}

}  // namespace qv_commons::uikit
