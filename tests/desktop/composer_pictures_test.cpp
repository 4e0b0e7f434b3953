// How composers and alerts look.
#include <QTest>

#include "qv_commons/platform/view_controllers.h"

#include "tests/desktop/screen_pictures.h"

namespace qv_commons::desktop {
namespace {

class ComposerPictures : public ScreenPictures {};

// A message, and the question whether what was typed is to be discarded.
TEST_P(ComposerPictures, AreTheSame) {
  const auto composer = platform_->viewControllers.makeMailComposer();
  composer->setToRecipients({"support@example.com"});
  composer->setSubject("Help with Notes");
  composer->setMessageBody("Reason for contacting support:\n\n\nApp ID: notesapp\n", false);
  composer->addAttachment({"Zm9v", "Text/XML", "Receipt-Data.txt"});
  host_->presentViewController(composer, true, nullptr);
  QTest::qWait(1);
  expectPicture("composer");
  type(*window_, "It");
  press(*window_, Qt::Key_Escape);
  ASSERT_NE(composer->presentedViewController(), nullptr);
  expectPicture("alert");
}

INSTANTIATE_TEST_SUITE_P(
    Screens, ComposerPictures,
    testing::Values(Picture{"phone-light", {390, 844}, kLight, Qt::LeftToRight, "en-GB"},
                    Picture{"phone-dark", {390, 844}, kDark, Qt::LeftToRight, "en-GB"},
                    Picture{"small-light", {320, 568}, kLight, Qt::LeftToRight, "en-GB"},
                    Picture{"rtl-dark", {390, 844}, kDark, Qt::RightToLeft, "en-GB"},
                    Picture{"desktop-light", {1920, 1080}, kLight, Qt::LeftToRight, "en-GB"}),
    [](const auto& picture) { return testName(picture.param); });

}  // namespace
}  // namespace qv_commons::desktop
