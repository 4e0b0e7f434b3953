#pragma once

#import <QV_Commons_iOS/QV_Defines.h>

NS_ASSUME_NONNULL_BEGIN

/// The family's legal documents on the web. Any thread.
QV_EXPORT
@interface QV_Links : NSObject

/// The privacy policy: an https address that ends in "/privacy/".
+ (NSURL*)privacyPolicy NS_SWIFT_NAME(privacyPolicy());

/// The terms of service: an https address on the same host that ends in "/terms-of-service/".
+ (NSURL*)termsOfService NS_SWIFT_NAME(termsOfService());

@end

NS_ASSUME_NONNULL_END
