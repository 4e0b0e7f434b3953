// The loader of layouts: what it sets, wires and refuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/uikit_standin/runtime/catch.h"
#import "tests/uikit_standin/standin.h"

@interface NibOwner : UIViewController
@property(nonatomic, strong) UILabel* title_;
@property(nonatomic, strong) UITextView* words;
@property(nonatomic, strong) UIButton* button;
@property(nonatomic) int presses;
@end

@implementation NibOwner
@synthesize title_ = _title;
@synthesize words = _words;
@synthesize button = _button;
@synthesize presses = _presses;
- (void)press:(id)sender {
  _presses += sender == _button ? 1 : 100;
}
@end

namespace {

class NibLoader : public testing::Test {
 protected:
  // Loads a layout with these connections of the owner and these views.
  void load(NSString* connections, NSString* views, NSString* ownerClass = @"NibOwner") {
    NSString* text = [NSString
        stringWithFormat:@"<document><objects><placeholder placeholderIdentifier=\"IBFilesOwner\" "
                         @"id=\"-1\" customClass=\"%@\"><connections>%@</connections>"
                         @"</placeholder><placeholder placeholderIdentifier=\"IBFirstResponder\" "
                         @"id=\"-2\"/>%@</objects></document>",
                         ownerClass, connections, views];
    loadText(text);
  }
  void loadText(NSString* text) {
    NSString* path = [NSTemporaryDirectory()
        stringByAppendingPathComponent:[NSString stringWithFormat:@"qv_%d.xib", getpid()]];
    [[text dataUsingEncoding:NSUTF8StringEncoding] writeToFile:path atomically:NO];
    standin::loadNib(path, owner);
    [NSFileManager.defaultManager removeItemAtPath:path error:nullptr];
  }
  std::string problemOf(NSString* connections, NSString* views,
                        NSString* ownerClass = @"NibOwner") {
    NSException* exception = catchException(^{
      load(connections, views, ownerClass);
    });
    return exception == nil ? "" : exception.reason.UTF8String;
  }

  NibOwner* owner = [NibOwner new];
};

TEST_F(NibLoader, MakesTheViewsAndNestsThem) {
  load(@"<outlet property=\"view\" destination=\"a\"/>",
       @"<view id=\"a\"><subviews><scrollView id=\"b\"><subviews><label id=\"c\" text=\"x\"/>"
       @"</subviews></scrollView><datePicker id=\"d\"/></subviews></view>");
  UIView* root = owner.view;
  ASSERT_EQ(root.subviews.count, 2U);
  EXPECT_TRUE([root.subviews[0] isKindOfClass:[UIScrollView class]]);
  EXPECT_TRUE([root.subviews[1] isKindOfClass:[UIDatePicker class]]);
  EXPECT_TRUE([root.subviews[0].subviews[0] isKindOfClass:[UILabel class]]);
}

TEST_F(NibLoader, SetsTextsAndFlags) {
  load(@"<outlet property=\"title_\" destination=\"a\"/><outlet property=\"words\" "
       @"destination=\"b\"/><outlet property=\"button\" destination=\"c\"/>",
       @"<label id=\"a\"><string key=\"text\">two&#10;lines</string></label>"
       @"<textView id=\"b\" editable=\"NO\" text=\"some &amp; more\"/>"
       @"<button id=\"c\" enabled=\"NO\"><state key=\"normal\" title=\"Go\"/>"
       @"<accessibility key=\"accessibilityConfiguration\" identifier=\"go\"/></button>");
  EXPECT_TRUE([owner.title_.text isEqual:@"two\nlines"]);
  EXPECT_TRUE([owner.words.attributedText.string isEqual:@"some & more"]);
  EXPECT_FALSE(owner.words.editable);
  EXPECT_TRUE(owner.words.selectable);
  EXPECT_TRUE([[owner.button titleForState:UIControlStateNormal] isEqual:@"Go"]);
  EXPECT_FALSE(owner.button.enabled);
  EXPECT_TRUE([owner.button.accessibilityIdentifier isEqual:@"go"]);
}

TEST_F(NibLoader, ConnectsActionsToTheirEventOnly) {
  load(@"<outlet property=\"button\" destination=\"a\"/>",
       @"<button id=\"a\"><connections><action selector=\"press:\" destination=\"-1\" "
       @"eventType=\"touchUpInside\"/></connections></button>");
  [owner.button sendActionsForControlEvents:UIControlEventValueChanged];
  EXPECT_EQ(owner.presses, 0);
  [owner.button sendActionsForControlEvents:UIControlEventTouchUpInside];
  EXPECT_EQ(owner.presses, 1);
}

TEST_F(NibLoader, NotesNothing) {
  standin::record().clear();
  load(@"<outlet property=\"title_\" destination=\"a\"/>", @"<label id=\"a\" text=\"x\"/>");
  EXPECT_TRUE(standin::record().empty());
}

TEST_F(NibLoader, RefusesWhatThePlatformWouldNotLoad) {
  EXPECT_THAT(problemOf(@"<outlet property=\"none\" destination=\"a\"/>", @"<label id=\"a\"/>"),
              testing::HasSubstr("undefined key"));
  EXPECT_THAT(problemOf(@"<outlet property=\"title_\" destination=\"b\"/>", @"<label id=\"a\"/>"),
              testing::HasSubstr("no object b"));
  EXPECT_THAT(problemOf(@"", @"<hologram id=\"a\"/>"),
              testing::HasSubstr("unknown element hologram"));
  EXPECT_THAT(problemOf(@"", @"<button id=\"a\"><connections><action selector=\"jump:\" "
                             @"destination=\"-1\" eventType=\"touchUpInside\"/></connections>"
                             @"</button>"),
              testing::HasSubstr("no action jump:"));
  EXPECT_THAT(problemOf(@"", @"", @"UISearchBar"), testing::HasSubstr("no UISearchBar"));
}

TEST_F(NibLoader, RefusesWhatIsNoXml) {
  NSException* exception = catchException(^{
    loadText(@"<document><objects>");
  });
  EXPECT_TRUE([exception.reason hasSuffix:@"not well-formed XML"]);
}

}  // namespace
