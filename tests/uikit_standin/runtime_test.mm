// What the run-time support must hold to for the tests of the adapter to mean anything.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <objc/runtime.h>

#include "tests/uikit_standin/runtime/catch.h"
#import "tests/uikit_standin/standin.h"

@interface Passenger : NSObject {
 @public
  std::shared_ptr<int> cargo;
}
@property(nonatomic, weak) id friend_;
@property(nonatomic, copy) int (^task)(void);
@end

@implementation Passenger
@synthesize friend_ = _friend;
@synthesize task = _task;
@end

namespace {

TEST(Runtime, EmptiesWeakReferencesOfEveryKind) {
  __weak id local;
  Passenger* other = [Passenger new];
  struct {
    __weak id member;
  } holder;
  @autoreleasepool {
    Passenger* gone = [Passenger new];
    local = gone;
    other.friend_ = gone;
    holder.member = gone;
  }
  EXPECT_TRUE(local == nil);
  EXPECT_TRUE(other.friend_ == nil);
  EXPECT_TRUE(holder.member == nil);
}

TEST(Runtime, DestroysTheCppMembersOfObjects) {
  std::weak_ptr<int> cargo;
  @autoreleasepool {
    Passenger* gone = [Passenger new];
    gone->cargo = std::make_shared<int>(1);
    cargo = gone->cargo;
  }
  EXPECT_TRUE(cargo.expired());
}

TEST(Runtime, MovesBlocksAndTheirVariablesToTheHeap) {
  __block int runs = 0;
  Passenger* passenger = [Passenger new];
  __weak id captured;
  @autoreleasepool {
    NSObject* object = [NSObject new];
    captured = object;
    passenger.task = ^{
      (void)object;
      return ++runs;
    };
  }
  EXPECT_TRUE(captured != nil);
  EXPECT_EQ(passenger.task(), 1);
  EXPECT_EQ(passenger.task(), 2);
  EXPECT_EQ(runs, 2);
  @autoreleasepool {
    passenger.task = nil;
  }
  EXPECT_TRUE(captured == nil);
}

TEST(Runtime, ReleasesWhatAnExceptionPasses) {
  __block __weak id gone = nil;
  NSException* exception;
  @autoreleasepool {
    exception = catchException(^{
      Passenger* passenger = [Passenger new];
      gone = passenger;
      [[NSMutableAttributedString new] addAttribute:@"a" value:passenger range:NSMakeRange(3, 4)];
    });
  }
  EXPECT_TRUE([exception.name isEqual:NSRangeException]);
  EXPECT_TRUE(gone == nil);
}

TEST(Runtime, KeepsAssociatedObjectsAsLongAsTheirOwner) {
  static const char key = 0;
  __weak id first;
  __weak id second;
  @autoreleasepool {
    NSObject* owner = [NSObject new];
    @autoreleasepool {
      NSObject* value = [NSObject new];
      first = value;
      objc_setAssociatedObject(owner, &key, value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
      EXPECT_TRUE(objc_getAssociatedObject(owner, &key) == value);
    }
    EXPECT_TRUE(first != nil);
    @autoreleasepool {
      NSObject* value = [NSObject new];
      second = value;
      objc_setAssociatedObject(owner, &key, value, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    }
    EXPECT_TRUE(first == nil);
    EXPECT_TRUE(objc_getAssociatedObject(owner, &first) == nil);
  }
  EXPECT_TRUE(second == nil);
}

}  // namespace
