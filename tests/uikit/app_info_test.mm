#import <QV_Commons_iOS/QV_Commons_iOS.h>
#include <gtest/gtest.h>

#include "qv_commons/app_info/app_info.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"
#import "tests/uikit/expect.h"

namespace {

TEST(UIKitAppInfo, ReadsTheMainBundle) {
  EXPECT_OBJECT(QV_AppInfoHelper.appVersion, @"2.4.1(317)");
  EXPECT_OBJECT(QV_AppInfoHelper.appId, @"com.example.notes");
  EXPECT_OBJECT(QV_AppInfoHelper.appName, @"Notes");
}

}  // namespace
