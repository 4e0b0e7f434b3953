#import "tests/uikit_standin/standin.h"

using standin::nameOf;
using standin::note;

@interface StandinTarget : NSObject
@property(nonatomic, weak) id target;
@property(nonatomic) SEL action;
@property(nonatomic) UIControlEvents events;
@end

@implementation StandinTarget
@synthesize target = _target;
@synthesize action = _action;
@synthesize events = _events;
@end

@implementation UIControl {
  NSMutableArray<StandinTarget*>* _targets;
}
@synthesize enabled = _enabled;
- (instancetype)init {
  if ((self = [super init])) {
    _targets = [NSMutableArray array];
    _enabled = YES;
  }
  return self;
}
- (void)setEnabled:(BOOL)enabled {
  note(@"%@ setEnabled:%d", nameOf(self), enabled);
  _enabled = enabled;
}
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
  StandinTarget* added = [StandinTarget new];
  added.target = target;
  added.action = action;
  added.events = events;
  [_targets addObject:added];
}
- (void)sendActionsForControlEvents:(UIControlEvents)events {
  if (!_enabled) return;
  for (StandinTarget* each in [_targets copy]) {
    id target = each.target;
    if (target == nil || !(each.events & events)) continue;
    IMP method = [target methodForSelector:each.action];
    reinterpret_cast<void (*)(id, SEL, id)>(method)(target, each.action, self);
  }
}
@end

@implementation UIButton {
  NSMutableDictionary<NSNumber*, NSString*>* _titles;
  NSMutableDictionary<NSNumber*, UIColor*>* _colors;
}
- (instancetype)init {
  if ((self = [super init])) {
    _titles = [NSMutableDictionary dictionary];
    _colors = [NSMutableDictionary dictionary];
  }
  return self;
}
- (void)setTitle:(NSString*)title forState:(UIControlState)state {
  note(@"%@ setTitle:\"%@\" forState:%lu", nameOf(self), title, state);
  _titles[@(state)] = title;
}
- (NSString*)titleForState:(UIControlState)state {
  return _titles[@(state)] ?: _titles[@(UIControlStateNormal)];
}
- (void)setTitleColor:(UIColor*)color forState:(UIControlState)state {
  note(@"%@ setTitleColor:%@ forState:%lu", nameOf(self), nameOf(color), state);
  _colors[@(state)] = color;
}
- (UIColor*)titleColorForState:(UIControlState)state {
  return _colors[@(state)] ?: _colors[@(UIControlStateNormal)];
}
@end

@implementation UIDatePicker
@synthesize preferredDatePickerStyle = _preferredDatePickerStyle;
@synthesize date = _date;
@synthesize minimumDate = _minimumDate;
@synthesize maximumDate = _maximumDate;
- (instancetype)init {
  if ((self = [super init])) _date = [NSDate date];
  return self;
}
- (void)setDate:(NSDate*)date {
  note(@"%@ setDate:%.3f", nameOf(self), date.timeIntervalSince1970);
  _date = _maximumDate == nil ? date : [date earlierDate:_maximumDate];
}
- (void)setMinimumDate:(NSDate*)date {
  note(@"%@ setMinimumDate:%.3f", nameOf(self), date.timeIntervalSince1970);
  _minimumDate = date;
}
- (void)setMaximumDate:(NSDate*)date {
  if (date == nil) {
    note(@"%@ setMaximumDate:nil", nameOf(self));
  } else {
    note(@"%@ setMaximumDate:%.3f", nameOf(self), date.timeIntervalSince1970);
  }
  _maximumDate = date;
  if (date != nil) _date = [_date earlierDate:date];
}
@end

@implementation UITextField
@synthesize text = _text;
@end

@implementation UISearchBar {
  UITextField* _published;
  id _underPrivateKey;
}
- (instancetype)init {
  if ((self = [super init])) {
    _published = [UITextField new];
    _underPrivateKey = _published;
  }
  return self;
}
- (UITextField*)searchTextField {
  if (!standin::systemIsAtLeast("13.0")) [self doesNotRecognizeSelector:_cmd];
  return _published;
}
- (void)standinSetSearchField:(id)value {
  _underPrivateKey = value;
}
- (id)valueForKey:(NSString*)key {
  if (![key isEqual:@"_searchField"]) return [super valueForKey:key];
  if (_underPrivateKey == [NSNull null]) return nil;
  return _underPrivateKey ?: [self valueForUndefinedKey:key];
}
@end

void standin::setSearchField(UISearchBar* searchBar, id value) {
  [searchBar performSelector:@selector(standinSetSearchField:) withObject:value];
}
