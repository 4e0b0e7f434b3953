// Time, links and view utilities by their selectors.
#import "tests/uikit/uikit_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class UIKitTime : public UIKitTest {};

TEST_F(UIKitTime, ReadsTheWallClock) {
  standin::setNow(1700000000.9);
  EXPECT_EQ([QV_TimeHelper currentTimeInMilliseconds], 1700000000900);
  EXPECT_EQ([QV_TimeHelper currentTimeInSeconds], 1700000000);
}

TEST_F(UIKitTime, Converts) {
  EXPECT_EQ([QV_TimeHelper secondsToMinutes:119 roundUp:NO], 1);
  EXPECT_EQ([QV_TimeHelper secondsToMinutes:62 roundUp:YES], 2);
  EXPECT_EQ([QV_TimeHelper secondsToMinutes:61 roundUp:YES], 1);
  EXPECT_EQ([QV_TimeHelper secondsToMinutes:INT64_MIN roundUp:YES], -153722867280912930);
  EXPECT_EQ([QV_TimeHelper secondsToDaysWithSeconds:172799], 1);
  EXPECT_EQ([QV_TimeHelper secondsToDaysWithSeconds:-86401], -1);
}

TEST_F(UIKitTime, WritesAndReadsDurations) {
  EXPECT_OBJECT([QV_TimeHelper secondsToHms:3725], @"1:02:05");
  EXPECT_OBJECT([QV_TimeHelper secondsToHms:7730941132800], @"-2147483648:00:00");
  EXPECT_OBJECT([QV_TimeHelper secondsToHmsDigits:3725], @"10205");
  EXPECT_OBJECT([QV_TimeHelper secondsToHmsDigits:0], @"");
  EXPECT_EQ([QV_TimeHelper hmsToSeconds:@" 1:30.75\n"], 90);
  EXPECT_EQ([QV_TimeHelper hmsToSeconds:@"\u20031:30\u2028"], 90);
}

TEST_F(UIKitTime, DiesOfTextThatIsNoDuration) {
  for (NSString* text in @[ @"", @"abc", @"1: 30", @"2562047788015216:00:00" ]) {
    EXPECT_DEATH([QV_TimeHelper hmsToSeconds:text], "QV_Commons fatal error: .*hmsToSeconds");
  }
  NSString* missing = nil;
  EXPECT_DEATH([QV_TimeHelper hmsToSeconds:missing], "QV_Commons fatal error: .*hmsToSeconds");
}

class UIKitLinks : public UIKitTest {};

TEST_F(UIKitLinks, OpenTheReviewPage) {
  [QV_RateHelper openWriteReviewOnAppStoreWithAppId:@"id123456789"];
  [QV_RateHelper openWriteReviewOnAppStoreWithAppId:@""];
  EXPECT_THAT(
      lines(),
      ElementsAre("UIApplication "
                  "openURL:itms-apps://apps.apple.com/app/id123456789?mt=8&action=write-review "
                  "options:0 completionHandler:nil",
                  "UIApplication openURL:itms-apps://apps.apple.com/app/?mt=8&action=write-review "
                  "options:0 completionHandler:nil"));
}

TEST_F(UIKitLinks, OpenNothingWhereTheLinkIsNoUrl) {
  for (NSString* appId in @[ @"a b", @"a\0b", @"été", @"👍", fromUnits({0xD83D}), @"%zz" ]) {
    [QV_RateHelper openWriteReviewOnAppStoreWithAppId:appId];
  }
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(UIKitLinks, LeadToTheLegalDocuments) {
  EXPECT_OBJECT([QV_Links privacyPolicy].scheme, @"https");
  EXPECT_OBJECT([QV_Links privacyPolicy].path, @"/privacy");  // without the closing slash
  EXPECT_TRUE([[QV_Links privacyPolicy].absoluteString hasSuffix:@"/privacy/"]);
  EXPECT_TRUE([[QV_Links termsOfService].absoluteString hasSuffix:@"/terms-of-service/"]);
  EXPECT_OBJECT([QV_Links privacyPolicy].host, [QV_Links termsOfService].host);
  EXPECT_OBJECT([QV_Links privacyPolicy], [QV_Links privacyPolicy]);
}

class UIKitTopViewController : public UIKitTest {
 protected:
  static UIViewController* top(UIViewController* controller) {
    return [QV_ViewControllerHelper topViewControllerWithController:controller];
  }
};

TEST_F(UIKitTopViewController, IsNilForNil) {
  EXPECT_OBJECT(top(nil), nil);
}

TEST_F(UIKitTopViewController, IsTheControllerThatPresentsNothing) {
  EXPECT_EQ(top(home), home);
}

TEST_F(UIKitTopViewController, IsFoundThroughContainersAndPresentation) {
  UIViewController* page = standin::makeViewController(@"page");
  UIViewController* sheet = standin::makeViewController(@"sheet");
  UITabBarController* tabs = [UITabBarController new];
  tabs.viewControllers = @[ page ];
  UINavigationController* navigation = [UINavigationController new];
  navigation.viewControllers = @[ tabs ];
  [home presentViewController:navigation animated:NO completion:nil];
  EXPECT_EQ(top(home), page);
  [page presentViewController:sheet animated:NO completion:nil];
  EXPECT_EQ(top(home), sheet);
}

TEST_F(UIKitTopViewController, IsNilWhereANavigationControllerShowsNothing) {
  UINavigationController* navigation = [UINavigationController new];
  [navigation presentViewController:home animated:NO completion:nil];
  EXPECT_OBJECT(top(navigation), nil);
}

TEST_F(UIKitTopViewController, IsTheTabBarControllerItselfWhereNoTabIsSelected) {
  UITabBarController* tabs = [UITabBarController new];
  EXPECT_EQ(top(tabs), tabs);
  [tabs presentViewController:home animated:NO completion:nil];
  EXPECT_EQ(top(tabs), home);
}

TEST_F(UIKitTopViewController, IsWhatPresentedTheAlert) {
  UIAlertController* alert =
      [UIAlertController alertControllerWithTitle:nil
                                          message:nil
                                   preferredStyle:UIAlertControllerStyleAlert];
  EXPECT_OBJECT(top(alert), nil);
  [home presentViewController:alert animated:NO completion:nil];
  EXPECT_EQ(top(home), home);
  EXPECT_EQ(top(alert), home);
}

class UIKitSearchBarField : public UIKitTest {
 protected:
  UISearchBar* bar = [UISearchBar new];
};

TEST_F(UIKitSearchBarField, IsThePublishedOneFromSystem13On) {
  UITextField* hidden = [UITextField new];
  standin::setSearchField(bar, hidden);
  standin::setSystemVersion(13, 0);
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions, bar.searchTextField);
  standin::setSystemVersion(12, 4, 9);
  EXPECT_EQ(bar.qv_searchTextField_all_iOS_versions, hidden);
}

TEST_F(UIKitSearchBarField, IsNilWhereThePrivateKeyGivesNoTextField) {
  standin::setSystemVersion(12, 0);
  standin::setSearchField(bar, [UIView new]);
  EXPECT_OBJECT(bar.qv_searchTextField_all_iOS_versions, nil);
  standin::setSearchField(bar, [NSNull null]);
  EXPECT_OBJECT(bar.qv_searchTextField_all_iOS_versions, nil);
}

TEST_F(UIKitSearchBarField, LetsThePlatformsExceptionPassWhereTheKeyIsUnknown) {
  standin::setSystemVersion(12, 0);
  standin::setSearchField(bar, nil);
  NSException* exception = catchException(^{
    (void)bar.qv_searchTextField_all_iOS_versions;
  });
  EXPECT_OBJECT(exception.name, NSUndefinedKeyException);
}

}  // namespace
