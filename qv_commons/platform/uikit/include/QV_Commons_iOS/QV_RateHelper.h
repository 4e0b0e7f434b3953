#pragma once

#import <QV_Commons_iOS/QV_Defines.h>

NS_ASSUME_NONNULL_BEGIN

/// The app store's page for writing a review. Main thread only.
NS_SWIFT_UI_ACTOR
QV_EXPORT
QV_APP_ONLY
@interface QV_RateHelper : NSObject

/// Opens the write-review page. Where the link can't be made or opened, nothing happens.
///
/// @param appId The app's identifier in the store, as its links spell it: @"id123456789". Inserted
///   as it is.
+ (void)openWriteReviewOnAppStoreWithAppId:(NSString*)appId
    NS_SWIFT_NAME(openWriteReviewOnAppStore(appId:));

@end

NS_ASSUME_NONNULL_END
