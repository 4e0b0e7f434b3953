// A text of any UTF-16 units, also of such as are no characters: gnustep-base's own class mends
// those away, the platform's does not.
#pragma once

#import <Foundation/Foundation.h>
#include <string>

@interface UnitsString : NSString
- (instancetype)initWithUnits:(std::u16string)units;
@end

inline NSString* fromUnits(std::u16string units) {
  return [[UnitsString alloc] initWithUnits:std::move(units)];
}
