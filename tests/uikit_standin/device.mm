#include <cstdio>

#import "tests/uikit_standin/standin.h"

namespace standin {
namespace {

NSOperatingSystemVersion systemVersion;
NSString* model;
CGSize screenSize;
UIUserInterfaceStyle interfaceStyle;

}  // namespace

void setSystemVersion(NSInteger major, NSInteger minor, NSInteger patch) {
  systemVersion = {major, minor, patch};
}

bool systemIsAtLeast(NSOperatingSystemVersion version) {
  if (systemVersion.majorVersion != version.majorVersion) {
    return systemVersion.majorVersion > version.majorVersion;
  }
  if (systemVersion.minorVersion != version.minorVersion) {
    return systemVersion.minorVersion > version.minorVersion;
  }
  return systemVersion.patchVersion >= version.patchVersion;
}

bool systemIsAtLeast(const char* version) {
  long major = 0;
  long minor = 0;
  std::sscanf(version, "%ld.%ld", &major, &minor);
  return systemIsAtLeast(NSOperatingSystemVersion{major, minor, 0});
}

void setModel(NSString* localizedModel) {
  model = localizedModel;
}
void setScreenSize(CGSize points) {
  screenSize = points;
}
void setUserInterfaceStyle(UIUserInterfaceStyle style) {
  interfaceStyle = style;
}
NSMutableArray<NSURL*>* openedURLs() {
  static NSMutableArray* const opened = [NSMutableArray array];
  return opened;
}

}  // namespace standin

@implementation UITraitCollection
- (UIUserInterfaceStyle)userInterfaceStyle {
  if (!standin::systemIsAtLeast("12.0")) [self doesNotRecognizeSelector:_cmd];
  return standin::interfaceStyle;
}
@end

@implementation UIScreen
+ (UIScreen*)mainScreen {
  static UIScreen* screen = [UIScreen new];
  return screen;
}
- (CGRect)bounds {
  return NSMakeRect(0, 0, standin::screenSize.width, standin::screenSize.height);
}
- (UITraitCollection*)traitCollection {
  return [UITraitCollection new];
}
@end

@implementation UIDevice
+ (UIDevice*)currentDevice {
  static UIDevice* device = [UIDevice new];
  return device;
}
- (NSString*)systemVersion {
  const NSOperatingSystemVersion& version = standin::systemVersion;
  NSString* text =
      [NSString stringWithFormat:@"%ld.%ld", version.majorVersion, version.minorVersion];
  if (version.patchVersion == 0) return text;
  return [text stringByAppendingFormat:@".%ld", version.patchVersion];
}
- (NSString*)localizedModel {
  return standin::model;
}
@end

@implementation UIApplication
+ (UIApplication*)sharedApplication {
  static UIApplication* application = [UIApplication new];
  return application;
}
- (void)openURL:(NSURL*)url
              options:(NSDictionary*)options
    completionHandler:(void (^)(BOOL))completion {
  standin::note(@"UIApplication openURL:%@ options:%lu completionHandler:%@", url.absoluteString,
                options.count, completion ? @"block" : @"nil");
  [standin::openedURLs() addObject:url];
}
@end
