#include <deque>
#include <objc/runtime.h>

#import "tests/uikit_standin/standin.h"

namespace standin {
namespace {

int pauses = 0;
bool strictPresentation = false;
const char kName = 0;

std::deque<void (^)(void)>& transitions() {
  static auto* const waiting = new std::deque<void (^)(void)>;
  return *waiting;
}

NSString* componentsOf(UIColor* color) {
  CGFloat red, green, blue, alpha;
  if (![color getRed:&red green:&green blue:&blue alpha:&alpha]) return @"UIColor";
  return [NSString stringWithFormat:@"(%g, %g, %g, %g)", red, green, blue, alpha];
}

}  // namespace

void reset() {
  finishTransitions();
  setNow(1700000000);
  setSystemVersion(14, 4);
  setModel(@"iPhone");
  setScreenSize(NSMakeSize(375, 667));
  setUserInterfaceStyle(UIUserInterfaceStyleLight);
  setReceiptURL(nil);
  setCanSendMail(true);
  setStrictPresentation(false);
  [openedURLs() removeAllObjects];
  [NSUserDefaults.standardUserDefaults removeObjectForKey:@"QV_AgeGate_Shown"];
  [NSUserDefaults.standardUserDefaults removeObjectForKey:@"QV_AgeGate_Blocked"];
  record().clear();
}

std::vector<std::string>& record() {
  static auto* const lines = new std::vector<std::string>;
  return *lines;
}

void note(NSString* format, ...) {
  if (pauses > 0) return;
  va_list arguments;
  va_start(arguments, format);
  NSString* line = [[NSString alloc] initWithFormat:format arguments:arguments];
  va_end(arguments);
  NSData* bytes = [line dataUsingEncoding:NSUTF8StringEncoding];
  record().emplace_back(static_cast<const char*>(bytes.bytes), bytes.length);
}

RecordPause::RecordPause() {
  ++pauses;
}

RecordPause::~RecordPause() {
  --pauses;
}

void setName(id object, NSString* name) {
  objc_setAssociatedObject(object, &kName, name, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
}

NSString* nameOf(id object) {
  if (object == nil) return @"nil";
  if (NSString* name = objc_getAssociatedObject(object, &kName)) return name;
  if ([object isKindOfClass:[UIColor class]]) return componentsOf(object);
  return NSStringFromClass([object class]);
}

void setStrictPresentation(bool strict) {
  strictPresentation = strict;
}

bool presentsStrictly() {
  return strictPresentation;
}

void afterTransition(BOOL animated, void (^done)(void)) {
  if (animated) {
    transitions().push_back([done copy]);
  } else {
    done();
  }
}

std::size_t waitingTransitions() {
  return transitions().size();
}

void finishTransition() {
  if (transitions().empty()) return;
  void (^done)(void) = transitions().front();
  transitions().pop_front();
  done();
}

void finishTransitions() {
  while (!transitions().empty()) finishTransition();
}

}  // namespace standin
