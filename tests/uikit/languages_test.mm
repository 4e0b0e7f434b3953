// The screens in the user's language: string tables in the resource bundle, found by the platform.
#import "qv_commons/platform/uikit/uikit_text_view.h"

#import "tests/uikit/age_gate_fixture.h"

namespace {

class UIKitLanguages : public AgeGateTest {
 protected:
  ~UIKitLanguages() override { [NSUserDefaults setUserLanguages:languagesBefore_]; }

  QV_AgeGateViewController* gateIn(NSArray<NSString*>* languages) {
    [NSUserDefaults setUserLanguages:languages];
    start();
    return gate();
  }
  NSString* headerIn(NSArray<NSString*>* languages) { return gateIn(languages).header.text; }

  // The words over which the link is, without their filler.
  static NSString* linkAt(UITextView* text, NSUInteger place) {
    NSRange range;
    [text.attributedText attribute:NSLinkAttributeName atIndex:place effectiveRange:&range];
    return [[text.attributedText.string substringWithRange:range]
        stringByReplacingOccurrencesOfString:@"\u2060"
                                  withString:@""];
  }

 private:
  NSArray<NSString*>* languagesBefore_ = NSLocale.preferredLanguages;
};

TEST_F(UIKitLanguages, AskInTheUsersLanguage) {
  QV_AgeGateViewController* screen = gateIn(@[ @"de-DE", @"en" ]);
  EXPECT_OBJECT(screen.header.text, @"Wann sind Sie geboren?");
  EXPECT_OBJECT(screen.subtitle.text, @"Dient nur der Altersprüfung und wird nicht gespeichert.");
  EXPECT_OBJECT(screen.datePicker.accessibilityLabel, @"Geburtsdatum");
  EXPECT_OBJECT([screen.confirmBtn titleForState:UIControlStateNormal], @"Bestätigen");
  EXPECT_OBJECT(linkAt(screen.tos, 0), @"Datenschutz");
  EXPECT_OBJECT(linkAt(screen.tos, 17), @"Nutzungsregeln");
}

TEST_F(UIKitLanguages, RefuseInTheUsersLanguage) {
  setFlag(@"QV_AgeGate_Shown");
  setFlag(@"QV_AgeGate_Blocked");
  [NSUserDefaults setUserLanguages:@[ @"zh-Hant-TW" ]];
  start();
  EXPECT_OBJECT(linkAt(refusal().contact, 38), @"聯絡我們尋求支援");
  EXPECT_OBJECT(linkAt(refusal().tos, 0), @"隱私權政策");
  EXPECT_OBJECT(linkAt(refusal().tos, 17), @"服務條款");
  EXPECT_EQ([refusal().header.text rangeOfString:@"很抱歉，您無法使用「"].location, 0u);
  EXPECT_EQ([refusal().header.text rangeOfString:@"[APPNAME]"].location, NSNotFound);
}

// What the user gets of the text that is selected, by the menu's Copy.
NSString* copied(UITextView* text, NSRange selected) {
  text.selectedRange = selected;
  [text copy:nil];
  return UIPasteboard.generalPasteboard.string;
}

TEST_F(UIKitLanguages, FillLinksWithWhatIsNeverCopied) {
  QV_AgeGateViewController* screen = gateIn(@[ @"de" ]);
  UITextView* text = screen.tos;
  EXPECT_NE([text.text rangeOfString:@"\u2060"].location, NSNotFound);
  EXPECT_OBJECT(copied(text, NSMakeRange(0, text.text.length)), @"Datenschutz & Nutzungsregeln");
  EXPECT_OBJECT(copied(text, NSMakeRange(5, 9)), @"schutz");
  EXPECT_OBJECT(copied(text, NSMakeRange(0, 0)), @"");
}

TEST_F(UIKitLanguages, FillTheContactLinkWithWhatIsNeverCopied) {
  setFlag(@"QV_AgeGate_Shown");
  setFlag(@"QV_AgeGate_Blocked");
  [NSUserDefaults setUserLanguages:@[ @"de" ]];
  start();
  UITextView* text = refusal().contact;
  EXPECT_OBJECT(copied(text, NSMakeRange(0, text.text.length)),
                @"Falls das ein Irrtum ist, bitte den Support kontaktieren.");
}

TEST_F(UIKitLanguages, StayInEnglishForAUserOfEnglish) {
  QV_AgeGateViewController* screen = gateIn(@[ @"en-GB", @"de" ]);
  EXPECT_OBJECT(screen.header.text, @"What’s your date of birth?");
  EXPECT_OBJECT(screen.datePicker.accessibilityLabel, @"Date of birth");
  EXPECT_OBJECT(screen.tos.attributedText.string, @"Privacy Policy & Terms of Service");
}

TEST_F(UIKitLanguages, TakeTheFirstLanguageThatTheySpeak) {
  EXPECT_OBJECT(headerIn(@[ @"sv-SE", @"pt-PT", @"de" ]), @"Quando você nasceu?");
}

TEST_F(UIKitLanguages, AreInEnglishWithoutALanguageThatTheySpeak) {
  EXPECT_OBJECT(headerIn(@[ @"sv-SE", @"tlh" ]), @"What’s your date of birth?");
}

}  // namespace
