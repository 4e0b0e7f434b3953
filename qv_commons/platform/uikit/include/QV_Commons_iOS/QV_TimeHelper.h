#pragma once

#import <QV_Commons_iOS/QV_Defines.h>

NS_ASSUME_NONNULL_BEGIN

/// The wall clock, conversions, and durations as text. Any thread.
QV_EXPORT
@interface QV_TimeHelper : NSObject

/// Milliseconds since 1970-01-01 00:00:00 UTC, truncated, for example 1700000000123.
+ (int64_t)currentTimeInMilliseconds NS_SWIFT_NAME(currentTimeInMilliseconds());

/// Seconds since 1970-01-01 00:00:00 UTC, truncated, for example 1700000000.
+ (NSInteger)currentTimeInSeconds NS_SWIFT_NAME(currentTimeInSeconds());

/// Whole minutes, truncated toward zero. Rounding up counts a begun minute only if more than one
/// second of it has passed: 61 gives 1 and 62 gives 2. Negative values never round.
+ (int64_t)secondsToMinutes:(int64_t)seconds
                    roundUp:(BOOL)roundUp NS_SWIFT_NAME(secondsToMinutes(_:roundUp:));

/// Whole days, truncated toward zero: 86399 gives 0, -86401 gives -1.
+ (NSInteger)secondsToDaysWithSeconds:(NSInteger)seconds NS_SWIFT_NAME(secondsToDays(seconds:));

/// Clock-style text: 125 gives "02:05", 3725 gives "1:02:05", 90061 gives "25:01:01", -65 gives
/// "-1:-5".
+ (NSString*)secondsToHms:(int64_t)seconds NS_SWIFT_NAME(secondsToHms(_:));

/// The same figures as one number: 3725 gives "10205", 59 gives "59", and anything below 1 gives
/// "".
+ (NSString*)secondsToHmsDigits:(int64_t)seconds NS_SWIFT_NAME(secondsToHmsDigits(_:));

/// Reads clock-style text: "1:02:05" gives 3725, " 1:30.75" gives 90. For text that `secondsToHms:`
/// wrote: text that can't be read stops the process.
+ (int64_t)hmsToSeconds:(NSString*)text NS_SWIFT_NAME(hmsToSeconds(_:));

@end

NS_ASSUME_NONNULL_END
