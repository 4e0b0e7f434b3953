// The theme by its selectors.
#import "qv_commons/platform/uikit/QV_AgeGateColorTheme_Core.h"
#import "qv_commons/platform/uikit/uikit_views.h"

#import "tests/uikit/uikit_test.h"

using qv_commons::uikit::toColor;
using qv_commons::uikit::toUIColor;

namespace {

class UIKitTheme : public UIKitTest {
 protected:
  static std::vector<std::string> coloursOf(QV_AgeGateColorTheme* theme) {
    const auto core = [theme core];
    std::vector<std::string> colours;
    for (const qv_commons::Color& color :
         {core->buttonBGColor, core->buttonTextColor, core->backgroundColor, core->textColor,
          core->policiesTextColor}) {
      colours.push_back(standin::nameOf(toUIColor(color)).UTF8String);
    }
    return colours;
  }

  const std::vector<std::string> light = {"(0, 0, 0, 1)", "(1, 1, 1, 1)", "(1, 1, 1, 1)",
                                          "(0.29, 0.29, 0.29, 1)", "(0.514, 0.514, 0.514, 1)"};
  const std::vector<std::string> dark = {"(1, 1, 1, 1)", "(0, 0, 0, 1)", "(0.118, 0.118, 0.118, 1)",
                                         "(1, 1, 1, 1)", "(0.541, 0.541, 0.541, 1)"};
};

TEST_F(UIKitTheme, IsDarkOnADarkDeviceFromSystem13On) {
  standin::setUserInterfaceStyle(UIUserInterfaceStyleDark);
  standin::setSystemVersion(13, 0);
  EXPECT_EQ(coloursOf([QV_AgeGateColorTheme defaultTheme]), dark);
}

TEST_F(UIKitTheme, IsLightOtherwise) {
  EXPECT_EQ(coloursOf([QV_AgeGateColorTheme defaultTheme]), light);
  standin::setUserInterfaceStyle(UIUserInterfaceStyleUnspecified);
  EXPECT_EQ(coloursOf([QV_AgeGateColorTheme defaultTheme]), light);
  standin::setUserInterfaceStyle(UIUserInterfaceStyleDark);
  standin::setSystemVersion(12, 4, 9);
  EXPECT_EQ(coloursOf([QV_AgeGateColorTheme defaultTheme]), light);
  standin::setSystemVersion(11, 0);
  EXPECT_EQ(coloursOf([QV_AgeGateColorTheme defaultTheme]), light);
}

TEST_F(UIKitTheme, IsANewObjectAtEachCall) {
  EXPECT_NE([QV_AgeGateColorTheme defaultTheme], [QV_AgeGateColorTheme defaultTheme]);
}

TEST_F(UIKitTheme, UsesThePlatformsOwnWhiteAndBlack) {
  const auto core = [[QV_AgeGateColorTheme defaultTheme] core];
  EXPECT_EQ(toUIColor(core->buttonBGColor), UIColor.blackColor);
  EXPECT_EQ(toUIColor(core->backgroundColor), UIColor.whiteColor);
}

TEST_F(UIKitTheme, KeepsTheHostsOwnColoursInTheirPlaces) {
  NSMutableArray<UIColor*>* given = [NSMutableArray array];
  for (int i = 0; i < 5; ++i) [given addObject:[UIColor new]];
  const auto core = [[[QV_AgeGateColorTheme alloc] initWithBackgroundColor:given[0]
                                                     buttonBackgroundColor:given[1]
                                                           buttonTextColor:given[2]
                                                                 textColor:given[3]
                                                         policiesTextColor:given[4]] core];
  EXPECT_EQ(toUIColor(core->backgroundColor), given[0]);
  EXPECT_EQ(toUIColor(core->buttonBGColor), given[1]);
  EXPECT_EQ(toUIColor(core->buttonTextColor), given[2]);
  EXPECT_EQ(toUIColor(core->textColor), given[3]);
  EXPECT_EQ(toUIColor(core->policiesTextColor), given[4]);
}

TEST_F(UIKitTheme, KeepsAHostsColourAliveAsLongAsItIsHeld) {
  __weak UIColor* weak;
  @autoreleasepool {
    qv_commons::Color held;
    @autoreleasepool {
      UIColor* color = [UIColor new];
      weak = color;
      held = toColor(color);
    }
    EXPECT_NE(weak, nil);
  }
  EXPECT_OBJECT(weak, nil);
}

TEST_F(UIKitTheme, DiesWhereItIsMadeWithoutColours) {
  // As a host would that the compiler can't stop.
  const auto send = [](id receiver, NSString* name) {
    const SEL selector = NSSelectorFromString(name);
    reinterpret_cast<void (*)(id, SEL)>([receiver methodForSelector:selector])(receiver, selector);
  };
  EXPECT_DEATH(send([QV_AgeGateColorTheme alloc], @"init"),
               "QV_Commons fatal error: .*\"init\\(\\)\".*QV_Commons_iOS\\.QV_AgeGateColorTheme");
  EXPECT_DEATH(send([QV_AgeGateColorTheme class], @"new"),
               "QV_Commons fatal error: .*\"init\\(\\)\".*QV_Commons_iOS\\.QV_AgeGateColorTheme");
}

}  // namespace
