// What the platform's Foundation has and gnustep-base lacks, and what tests set of it.
#include <objc/runtime.h>

#import "tests/uikit_standin/standin.h"

namespace {

double now;
NSURL* receiptURL;
IMP originalSetBool;

NSDate* standinDate(id, SEL) {
  return [NSDate dateWithTimeIntervalSince1970:now];
}

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

void standin::setNow(double secondsSince1970) {
  now = secondsSince1970;
}

void standin::setReceiptURL(NSURL* url) {
  receiptURL = url;
}

@implementation NSProcessInfo (StandinAdditions)
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version {
  return standin::systemIsAtLeast(version);
}
@end

@implementation NSBundle (StandinAdditions)
- (NSURL*)appStoreReceiptURL {
  return receiptURL;
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
    NSString* text =
        [NSString stringWithFormat:@"The file “%@” couldn’t be opened%@.", url.lastPathComponent,
                                   exists ? @"" : @" because there is no such file"];
    *error = [NSError errorWithDomain:NSCocoaErrorDomain
                                 code:exists ? 256 : 260
                             userInfo:@{NSLocalizedDescriptionKey : text}];
  }
  return nil;
}
@end
