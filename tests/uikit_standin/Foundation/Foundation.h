// gnustep-base's Foundation, with what the platform's has and it lacks.
#pragma once
#pragma clang system_header

#include_next <Foundation/Foundation.h>

#ifdef __APPLE__
typedef double CGFloat;
#endif

// Only the compiler for the device judges by first system versions.
#ifndef API_AVAILABLE
#ifdef __APPLE__
#define API_AVAILABLE(version) __attribute__((availability(STANDIN_##version)))
#define STANDIN_ios(version) ios, introduced = version
#else
#define API_AVAILABLE(...)
#endif
#endif

// gnustep-base defines it as nothing.
#undef NS_UNAVAILABLE
#define NS_UNAVAILABLE __attribute__((unavailable))

#ifndef NS_SWIFT_NAME
#define NS_SWIFT_NAME(name) __attribute__((swift_name(#name)))
#endif

NS_ASSUME_NONNULL_BEGIN

typedef struct {
  NSInteger majorVersion;
  NSInteger minorVersion;
  NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo (StandinAdditions)
- (BOOL)isOperatingSystemAtLeastVersion:(NSOperatingSystemVersion)version;
@end

@interface NSBundle (StandinAdditions)
@property(readonly, copy, nullable) NSURL* appStoreReceiptURL;
@end

@interface NSData (StandinAdditions)
- (nullable instancetype)initWithContentsOfURL:(NSURL*)url
                                       options:(NSUInteger)options
                                         error:(NSError* _Nullable* _Nullable)error;
@end

NS_ASSUME_NONNULL_END
