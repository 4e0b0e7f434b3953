// An app into which nobody put the library's resource bundle.
#import "tests/uikit/uikit_test.h"

namespace {

class UIKitBareApp : public UIKitTest {
 protected:
  NSString* problemOfStart() {
    return catchException(^{
             [QV_AgeGateHelper
                 startAgeGateProcessWithViewController:home
                                    minimumAgeRequired:18
                                            completion:nil
                                      contactUsHandler:nil
                                            colorTheme:[QV_AgeGateColorTheme defaultTheme]
                                           privacyLink:@""
                                    termsOfServiceLink:@""];
           })
        .reason;
  }
};

TEST_F(UIKitBareApp, HasNoResourceBundleAndSaysNothing) {
  testing::internal::CaptureStdout();
  EXPECT_OBJECT([QV_BundleFileHelper getQVCommonsResourceBundle], nil);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(UIKitBareApp, CannotLoadTheScreens) {
  EXPECT_TRUE([problemOfStart() hasSuffix:@"with name 'QV_AgeGateViewController'"]);
  [NSUserDefaults.standardUserDefaults setBool:YES forKey:@"QV_AgeGate_Shown"];
  [NSUserDefaults.standardUserDefaults setBool:YES forKey:@"QV_AgeGate_Blocked"];
  EXPECT_TRUE([problemOfStart() hasSuffix:@"with name 'QV_AgeGateRefusedViewController'"]);
}

TEST_F(UIKitBareApp, StillLetsThroughWhoWasLetThroughBefore) {
  [NSUserDefaults.standardUserDefaults setBool:YES forKey:@"QV_AgeGate_Shown"];
  EXPECT_OBJECT(problemOfStart(), nil);
}

TEST_F(UIKitBareApp, HasEmptyTextsForItsParticulars) {
  EXPECT_OBJECT([QV_AppInfoHelper appVersion], @"()");
  EXPECT_OBJECT([QV_AppInfoHelper appId], @"");
  EXPECT_OBJECT([QV_AppInfoHelper appName], @"");
}

}  // namespace
