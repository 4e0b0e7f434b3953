// The wheels that the layout counts on.
#import "tests/uikit/age_gate_fixture.h"

namespace {

class DatePickerStyle : public AgeGateTest {
 protected:
  UIDatePickerStyle styleOn(NSInteger major, NSInteger minor) {
    standin::setSystemVersion(major, minor);
    start();
    return gate().datePicker.preferredDatePickerStyle;
  }
};

TEST_F(DatePickerStyle, IsWheelsFromTheFirstVersionThatHasAChoice) {
  EXPECT_EQ(styleOn(13, 4), UIDatePickerStyleWheels);
}

TEST_F(DatePickerStyle, IsWheelsOnLaterSystems) {
  EXPECT_EQ(styleOn(17, 0), UIDatePickerStyleWheels);
}

TEST_F(DatePickerStyle, IsNotAskedForBefore) {
  EXPECT_EQ(styleOn(13, 3), UIDatePickerStyleAutomatic);
}

}  // namespace
