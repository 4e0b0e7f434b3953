// What the tests of the adapter share: a host's screen, and whole records compared in order.
#pragma once

#import <QV_Commons_iOS/QV_Commons_iOS.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#import "tests/uikit/expect.h"
#import "tests/uikit/units_string.h"
#include "tests/uikit_standin/runtime/catch.h"
#import "tests/uikit_standin/standin.h"

// Lets go of what was autoreleased since the test began, as each turn of the run loop does. Not
// within a pool of the test's own.
void endTurnOfRunLoop();

class UIKitTest : public testing::Test {
 protected:
  // What has been noted since the last call.
  static std::vector<std::string> lines() { return std::exchange(standin::record(), {}); }

  UIViewController* home = standin::makeViewController(@"home");
};
