#import "tests/uikit/units_string.h"

#include <utility>

@implementation UnitsString {
  std::u16string _units;
}

- (instancetype)initWithUnits:(std::u16string)units {
  if ((self = [super init])) _units = std::move(units);
  return self;
}
- (NSUInteger)length {
  return _units.size();
}
- (unichar)characterAtIndex:(NSUInteger)index {
  return _units.at(index);
}
- (id)copyWithZone:(NSZone*)zone {
  return self;
}

@end
