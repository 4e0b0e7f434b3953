// Expectations about Objective-C objects, for GoogleTest.
#pragma once

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>
#include <string>

// Both equal by isEqual:, or both nil.
#define EXPECT_OBJECT(actual, expected) EXPECT_PRED_FORMAT2(expectEqualObjects, actual, expected)

inline std::string describeObject(id object) {
  return object == nil ? "nil" : [object description].UTF8String;
}

inline testing::AssertionResult expectEqualObjects(const char* actualText, const char*, id actual,
                                                   id expected) {
  if (actual == expected || [actual isEqual:expected]) return testing::AssertionSuccess();
  return testing::AssertionFailure() << actualText << "\n  is " << describeObject(actual)
                                     << "\n  not " << describeObject(expected);
}
