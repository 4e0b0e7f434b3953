#pragma once

#import <QV_Commons_iOS/QV_Defines.h>

NS_ASSUME_NONNULL_BEGIN

/// What the app says of itself in its main bundle. Nothing fails: what is missing, or is no text,
/// becomes the empty text. Any thread.
QV_EXPORT
@interface QV_AppInfoHelper : NSObject

/// The short version and the build, for example "2.4.1(317)"; "()" where both are missing.
+ (NSString*)appVersion NS_SWIFT_NAME(appVersion());

/// The bundle identifier, for example "com.example.notes", or "".
+ (NSString*)appId NS_SWIFT_NAME(appId());

/// The display name, for example "Notes", or "". No other key stands in for it.
+ (NSString*)appName NS_SWIFT_NAME(appName());

@end

NS_ASSUME_NONNULL_END
