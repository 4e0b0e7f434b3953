// App info, the resource bundle and JSON files by their selectors, from real bundles.
#include "qv_commons/app_info/app_info_helper.h"
#import "qv_commons/platform/uikit/uikit_bundle.h"

#import "tests/uikit/temporary_folder.h"
#import "tests/uikit/uikit_test.h"

using qv_commons::appIdOf;
using qv_commons::appNameOf;
using qv_commons::appVersionOf;
using qv_commons::uikit::UIKitBundle;

namespace {

class UIKitAppInfo : public UIKitTest {
 protected:
  // An app whose info dictionary holds these entries of a property list.
  UIKitBundle appWith(NSString* entries) {
    folder.write(@"Info.plist",
                 [NSString stringWithFormat:@"<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                                            @"<plist version=\"1.0\"><dict>%@</dict></plist>",
                                            entries]);
    return UIKitBundle([NSBundle bundleWithPath:folder.path()]);
  }

  TemporaryFolder folder{@"app"};
};

TEST_F(UIKitAppInfo, ReadsTheMainBundle) {
  EXPECT_OBJECT([QV_AppInfoHelper appVersion], @"2.4.1(317)");
  EXPECT_OBJECT([QV_AppInfoHelper appId], @"com.example.notes");
  EXPECT_OBJECT([QV_AppInfoHelper appName], @"Notes");
}

TEST_F(UIKitAppInfo, LeavesOutWhatIsNoText) {
  const UIKitBundle app = appWith(@"<key>CFBundleShortVersionString</key><string>1.0</string>"
                                  @"<key>CFBundleVersion</key><integer>1</integer>"
                                  @"<key>CFBundleDisplayName</key><true/>"
                                  @"<key>CFBundleName</key><string>other</string>");
  EXPECT_EQ(appVersionOf(app), "1.0()");
  EXPECT_EQ(appNameOf(app), "");
}

TEST_F(UIKitAppInfo, HasEmptyTextsForWhatIsMissing) {
  const UIKitBundle app = appWith(@"");
  EXPECT_EQ(appVersionOf(app), "()");
  EXPECT_EQ(appIdOf(app), "");
  EXPECT_EQ(appNameOf(app), "");
}

TEST_F(UIKitAppInfo, KeepsTextsThatAreNoAscii) {
  const UIKitBundle app = appWith(@"<key>CFBundleDisplayName</key><string>Notizbücher 📓</string>");
  EXPECT_EQ(appNameOf(app), "Notizbücher 📓");
}

TEST_F(UIKitAppInfo, HasNoTextForValuesOfOtherTypes) {
  const UIKitBundle app = appWith(@"<key>text</key><string>1</string>"
                                  @"<key>integer</key><integer>317</integer>"
                                  @"<key>real</key><real>0.5</real>"
                                  @"<key>true</key><true/><key>list</key><array/>");
  EXPECT_EQ(app.textForInfoDictionaryKey("text"), "1");
  for (const char* key : {"integer", "real", "true", "list", "none"}) {
    EXPECT_EQ(app.textForInfoDictionaryKey(key), std::nullopt) << key;
  }
}

TEST_F(UIKitAppInfo, FindsTheResourceBundle) {
  NSBundle* bundle = [QV_BundleFileHelper getQVCommonsResourceBundle];
  EXPECT_OBJECT(bundle.bundlePath.lastPathComponent, @"QV_Commons_iOS.bundle");
  for (NSString* name in @[ @"QV_AgeGateViewController", @"QV_AgeGateRefusedViewController" ]) {
    EXPECT_NE([bundle pathForResource:name ofType:@"xib" inDirectory:@"Base.lproj"], nil);
  }
}

TEST_F(UIKitAppInfo, ReadsAJsonFileAsItIs) {
  EXPECT_OBJECT([QV_BundleFileHelper loadJsonFromBundleWithFilename:@"words"],
                @"{ \"greeting\" : \"Grüß Gott 👋\",\r\n  oops }\n");
}

TEST_F(UIKitAppInfo, FindsNoJsonFileUnderAnotherName) {
  testing::internal::CaptureStdout();
  EXPECT_OBJECT([QV_BundleFileHelper loadJsonFromBundleWithFilename:@"words.json"], nil);
  EXPECT_OBJECT([QV_BundleFileHelper loadJsonFromBundleWithFilename:@"none"], nil);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(UIKitAppInfo, SaysOnTheConsoleThatAJsonFileIsNoText) {
  testing::internal::CaptureStdout();
  EXPECT_OBJECT([QV_BundleFileHelper loadJsonFromBundleWithFilename:@"latin1"], nil);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "QV_BundleFileHelper - Error!! Unable to parse  latin1.json\n");
}

}  // namespace
