#pragma once

#import <QV_Commons_iOS/QV_Defines.h>

NS_ASSUME_NONNULL_BEGIN

/// The library's resource bundle, and the JSON files of the app. Any thread.
QV_EXPORT
@interface QV_BundleFileHelper : NSObject

/// "QV_Commons_iOS.bundle" beside the library's code, looked up at each call; nil where it is not
/// there or can't be opened.
+ (nullable NSBundle*)getQVCommonsResourceBundle NS_SWIFT_NAME(getQVCommonsResourceBundle());

/// The whole text of `filename` + ".json" in the app's main bundle, as it is: not parsed. Nil where
/// there is no such file, and, with one line on the console, where it is not UTF-8 text.
///
/// @param filename Without the extension, for example @"config".
+ (nullable NSString*)loadJsonFromBundleWithFilename:(NSString*)filename
    NS_SWIFT_NAME(loadJsonFromBundle(filename:));

@end

NS_ASSUME_NONNULL_END
