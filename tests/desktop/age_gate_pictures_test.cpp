// How the screens of the age gate look.
#include <QPushButton>
#include <QTest>

#include "tests/desktop/screen_pictures.h"

namespace qv_commons::desktop {
namespace {

class AgeGatePictures : public ScreenPictures {};

TEST_P(AgeGatePictures, AreTheSame) {
  startAgeGate(18);
  expectPicture("gate");
  click(wheel(*gate(), DateField::day));
  press(*gate(), Qt::Key_Up);
  auto& button = view<QPushButton>(*gate(), "confirmBtn");
  button.setFocus();
  QTest::qWait(1);
  expectPicture("gate-ready");
  press(*gate(), Qt::Key_Space);
  ASSERT_NE(refusal(), nullptr);
  expectPicture("refusal");
}

INSTANTIATE_TEST_SUITE_P(
    Screens, AgeGatePictures,
    testing::Values(Picture{"phone-light", {390, 844}, kLight, Qt::LeftToRight, "en-US"},
                    Picture{"phone-dark", {390, 844}, kDark, Qt::LeftToRight, "en-US"},
                    Picture{"small-light", {320, 568}, kLight, Qt::LeftToRight, "en-GB"},
                    Picture{"rtl-dark", {390, 844}, kDark, Qt::RightToLeft, "he-IL-u-ca-hebrew"},
                    Picture{"tablet-light", {1024, 1366}, kLight, Qt::LeftToRight, "en-US"},
                    Picture{"window-dark", {800, 600}, kDark, Qt::LeftToRight, "en-US"},
                    Picture{"desktop-light", {1920, 1080}, kLight, Qt::LeftToRight, "en-GB"}),
    [](const auto& picture) { return testName(picture.param); });

}  // namespace
}  // namespace qv_commons::desktop
