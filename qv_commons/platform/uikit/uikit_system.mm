#import "qv_commons/platform/uikit/uikit_system.h"

#import <UIKit/UIKit.h>
#include <cmath>
#include <cstdio>

#import "qv_commons/platform/uikit/availability.h"
#import "qv_commons/platform/uikit/text.h"
#include "qv_commons/support/url.h"

namespace qv_commons::uikit {
namespace {

// Nothing where the date is beyond what the calendar counts in: some ten thousand years.
NSDate* toNSDate(Instant instant) {
  constexpr double kFarthest = 4e11;
  const double seconds = secondsSince1970(instant);
  if (!(std::abs(seconds) <= kFarthest)) return nil;
  return [NSDate dateWithTimeIntervalSince1970:seconds];
}

}  // namespace

std::string UIKitDevice::systemVersion() const {
  return toString(UIDevice.currentDevice.systemVersion);
}

std::string UIKitDevice::localizedModel() const {
  return toString(UIDevice.currentDevice.localizedModel);
}

std::vector<std::string> UIKitDevice::preferredLanguages() const {
  return toStrings([NSLocale preferredLanguages]);
}

Size UIKitDevice::screenBounds() const {
  const CGRect bounds = UIScreen.mainScreen.bounds;
  return {bounds.size.width, bounds.size.height};
}

UserInterfaceStyle UIKitDevice::userInterfaceStyle() const {
  if (QV_IOS_AVAILABLE(12.0)) {
    return static_cast<UserInterfaceStyle>(UIScreen.mainScreen.traitCollection.userInterfaceStyle);
  }
  return UserInterfaceStyle::unspecified;
}

bool UIKitDevice::isSystemVersionAtLeast(int major) const {
  return [NSProcessInfo.processInfo isOperatingSystemAtLeastVersion:{major, 0, 0}];
}

Instant UIKitClock::now() const {
  return instantAt([NSDate date].timeIntervalSince1970);
}

void UIKitApplication::print(std::string_view line) {
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

std::optional<std::int64_t> UIKitCalendar::yearsBetween(Instant from, Instant to) const {
  NSDate* start = toNSDate(from);
  NSDate* end = toNSDate(to);
  if (start == nil || end == nil) return std::nullopt;
  return [NSCalendar.currentCalendar components:NSCalendarUnitYear
                                       fromDate:start
                                         toDate:end
                                        options:0]
      .year;
}

std::optional<Instant> UIKitCalendar::dateByAddingYears(Instant date, int years) const {
  NSDate* start = toNSDate(date);
  if (start == nil) return std::nullopt;
  NSDateComponents* added = [NSDateComponents new];
  added.year = years;
  NSDate* sum = [NSCalendar.currentCalendar dateByAddingComponents:added toDate:start options:0];
  if (sum == nil) return std::nullopt;
  return instantAt(sum.timeIntervalSince1970);
}

bool UIKitUserDefaults::boolForKey(std::string_view key) const {
  return [NSUserDefaults.standardUserDefaults boolForKey:toNSString(key)];
}

void UIKitUserDefaults::setBool(bool value, std::string_view key) {
  [NSUserDefaults.standardUserDefaults setBool:value forKey:toNSString(key)];
}

void UIKitApplication::openURL(const URL& url) {
  NSURL* link = [NSURL URLWithString:toNSString(url.text())];
  if (link == nil) return;
  [UIApplication.sharedApplication openURL:link options:@{} completionHandler:nil];
}

#ifndef __APPLE__
bool systemIsAtLeast(const char* version) {
  int major = 0;
  int minor = 0;
  std::sscanf(version, "%d.%d", &major, &minor);
  return [NSProcessInfo.processInfo isOperatingSystemAtLeastVersion:{major, minor, 0}];
}
#endif

}  // namespace qv_commons::uikit
