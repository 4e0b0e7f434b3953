#include <objc/runtime.h>

#include <cstdio>

#import "tests/uikit_standin/standin.h"

namespace standin {
namespace {

double now;
NSOperatingSystemVersion systemVersion;
NSString* model;
CGSize screenSize;
UIUserInterfaceStyle interfaceStyle;
NSURL* receiptURL;
NSMutableArray<NSURL*>* opened;
bool canSendMail;

}  // namespace

void reset() {
  finishTransitions();
  now = 1700000000;
  setSystemVersion(14, 4);
  model = @"iPhone";
  screenSize = NSMakeSize(375, 667);
  interfaceStyle = UIUserInterfaceStyleLight;
  receiptURL = nil;
  opened = [NSMutableArray array];
  canSendMail = true;
  NSUserDefaults* defaults = NSUserDefaults.standardUserDefaults;
  [defaults removeObjectForKey:@"QV_AgeGate_Shown"];
  [defaults removeObjectForKey:@"QV_AgeGate_Blocked"];
  record().clear();
}

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

void setNow(double secondsSince1970) { now = secondsSince1970; }
void setModel(NSString* localizedModel) { model = localizedModel; }
void setScreenSize(CGSize points) { screenSize = points; }
void setUserInterfaceStyle(UIUserInterfaceStyle style) { interfaceStyle = style; }
void setReceiptURL(NSURL* url) { receiptURL = url; }
NSMutableArray<NSURL*>* openedURLs() { return opened; }
void setCanSendMail(bool can) { canSendMail = can; }

}  // namespace standin

namespace {

NSDate* standinDate(id, SEL) { return [NSDate dateWithTimeIntervalSince1970:standin::now]; }

IMP originalSetBool;

void noteSetBool(NSUserDefaults* self, SEL selector, BOOL value, NSString* key) {
  standin::note(@"NSUserDefaults setBool:%d forKey:%@", value, key);
  reinterpret_cast<void (*)(id, SEL, BOOL, NSString*)>(originalSetBool)(self, selector, value, key);
}

}  // namespace

// The clock stands still at what a test set; what is written to the user defaults is noted.
@interface StandinFoundation : NSObject
@end

@implementation StandinFoundation
+ (void)load {
  method_setImplementation(class_getClassMethod([NSDate class], @selector(date)),
                           reinterpret_cast<IMP>(standinDate));
  originalSetBool = method_setImplementation(
      class_getInstanceMethod([NSUserDefaults class], @selector(setBool:forKey:)),
      reinterpret_cast<IMP>(noteSetBool));
}
@end

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
  [standin::opened addObject:url];
}
@end

@implementation NSProcessInfo (StandinAdditions)
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version {
  return standin::systemIsAtLeast(version);
}
@end

@implementation NSBundle (StandinAdditions)
- (NSURL*)appStoreReceiptURL {
  return standin::receiptURL;
}
@end

@implementation NSData (StandinAdditions)
- (instancetype)initWithContentsOfURL:(NSURL*)url
                              options:(NSUInteger)options
                                error:(NSError**)error {
  (void)options;
  BOOL isFolder = NO;
  const BOOL exists = [NSFileManager.defaultManager fileExistsAtPath:url.path
                                                         isDirectory:&isFolder];
  NSData* data = exists && !isFolder ? [NSData dataWithContentsOfFile:url.path] : nil;
  if (data != nil) return [self initWithData:data];
  if (error) {
    NSString* text = [NSString stringWithFormat:@"The file “%@” couldn’t be opened%@.",
                                                url.lastPathComponent,
                                                exists ? @"" : @" because there is no such file"];
    *error = [NSError errorWithDomain:NSCocoaErrorDomain
                                 code:exists ? 256 : 260
                             userInfo:@{NSLocalizedDescriptionKey : text}];
  }
  return nil;
}
@end

@interface MFMailComposeViewController ()
- (const standin::Mail&)standinMail;
@end

@implementation MFMailComposeViewController {
  standin::Mail _mail;
}
@synthesize mailComposeDelegate = _mailComposeDelegate;
+ (BOOL)canSendMail {
  standin::note(@"%@ canSendMail", NSStringFromClass(self));
  return standin::canSendMail;
}
- (const standin::Mail&)standinMail {
  return _mail;
}
- (void)setMailComposeDelegate:(id<MFMailComposeViewControllerDelegate>)delegate {
  standin::note(@"%@ setMailComposeDelegate:%@", standin::nameOf(self), standin::nameOf(delegate));
  _mailComposeDelegate = delegate;
}
- (void)setSubject:(NSString*)subject {
  standin::note(@"%@ setSubject:\"%@\"", standin::nameOf(self), subject);
  _mail.subject = [subject copy];
}
- (void)setToRecipients:(NSArray<NSString*>*)recipients {
  standin::note(@"%@ setToRecipients:[%@]", standin::nameOf(self),
                [recipients componentsJoinedByString:@", "]);
  _mail.toRecipients = [recipients copy];
}
- (void)setMessageBody:(NSString*)body isHTML:(BOOL)isHTML {
  standin::note(@"%@ setMessageBody:%lu units isHTML:%d", standin::nameOf(self), body.length,
                isHTML);
  _mail.body = [body copy];
  _mail.isHTML = isHTML;
}
- (void)addAttachmentData:(NSData*)data mimeType:(NSString*)mimeType fileName:(NSString*)fileName {
  standin::note(@"%@ addAttachmentData:%lu bytes mimeType:%@ fileName:%@", standin::nameOf(self),
                data.length, mimeType, fileName);
  _mail.attachments.push_back({[data copy], [mimeType copy], [fileName copy]});
}
@end

const standin::Mail& standin::mailOf(MFMailComposeViewController* composer) {
  return [composer standinMail];
}

void standin::finishMail(MFMailComposeViewController* composer, MFMailComposeResult result,
                         NSError* error) {
  id<MFMailComposeViewControllerDelegate> delegate = composer.mailComposeDelegate;
  if ([delegate respondsToSelector:@selector(mailComposeController:didFinishWithResult:error:)]) {
    [delegate mailComposeController:composer didFinishWithResult:result error:error];
  }
}
