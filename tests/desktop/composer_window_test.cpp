// The composer as a window: keyboard, screen reader, what blocks what.
#include <QAccessible>
#include <QApplication>

#include "qv_commons/platform/desktop/sheet.h"

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComposerWindows : public ComposerTest {
 protected:
  std::string focused() { return QApplication::focusWidget()->objectName().toStdString(); }

  QAccessibleInterface& accessible(const char* name) {
    return *QAccessible::queryAccessibleInterface(&find<QWidget>(*composer_, name));
  }
};

TEST_F(ComposerWindows, ComesUpOverTheHostsAndBlocksIt) {
  QPushButton button("host", &host_);
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  button.show();
  click(button);
  EXPECT_EQ(clicks, 1);
  open();
  EXPECT_EQ(windowOf(*composer_).window(), &host_);
  EXPECT_EQ(windowOf(*composer_).size(), host_.size());
  click(button);
  EXPECT_EQ(clicks, 1);
  click(*composer_, "cancel");
  settle();
  click(button);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ComposerWindows, AnotherOneAboveBlocksIt) {
  open();
  const auto above = desktop_->platform().viewControllers.makeMailComposer();
  screen_->presentViewController(above, true, nullptr);
  settle();
  EXPECT_TRUE(Sheet::isCovered(find<QWidget>(*composer_, "cancel")));
  EXPECT_FALSE(Sheet::isCovered(find<QWidget>(*above, "cancel")));
  click(*composer_, "cancel");  // where the one above has its own
  settle();
  EXPECT_FALSE(isOnScreen(*above));
  EXPECT_TRUE(isOpen());
  click(*composer_, "cancel");
  settle();
  EXPECT_FALSE(isOpen());
}

TEST_F(ComposerWindows, TabGoesThroughFieldsAndButtonsInTheirOrder) {
  open();
  std::vector<std::string> order{focused()};
  for (int i = 0; i < 6; ++i) {
    press(*composer_, Qt::Key_Tab);
    order.push_back(focused());
  }
  EXPECT_THAT(order, ElementsAre("body", "save", "send", "cancel", "to", "subject", "body"));
}

TEST_F(ComposerWindows, ShiftAndReturnGiveALineLikeReturn) {
  open();
  press(*composer_, Qt::Key_A);
  press(*composer_, Qt::Key_Return, Qt::ShiftModifier);
  press(*composer_, Qt::Key_B);
  press(*composer_, Qt::Key_Enter, Qt::ShiftModifier | Qt::KeypadModifier);
  EXPECT_EQ(find<QPlainTextEdit>(*composer_, "body").document()->toRawText(),
            QString("Reason:\u2029a\u2029b\u2029\u2029App: x\u2029"));
}

TEST_F(ComposerWindows, ReturnInAFieldDoesNotSend) {
  open();
  click(*composer_, "subject");
  press(*composer_, Qt::Key_Return);
  settle();
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(noticeText(), "");
}

TEST_F(ComposerWindows, ControlReturnSends) {
  open();
  press(*composer_, Qt::Key_Return, Qt::ControlModifier);
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
}

TEST_F(ComposerWindows, ControlSSaves) {
  open();
  press(*composer_, Qt::Key_S, Qt::ControlModifier);
  ASSERT_TRUE(waitForNotice("Saved to "));
  press(*composer_, Qt::Key_Return);
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
}

TEST_F(ComposerWindows, AltAndALetterGoToAField) {
  open();
  press(*composer_, Qt::Key_T, Qt::AltModifier);
  EXPECT_EQ(focused(), "to");
  press(*composer_, Qt::Key_U, Qt::AltModifier);
  EXPECT_EQ(focused(), "subject");
  press(*composer_, Qt::Key_M, Qt::AltModifier);
  EXPECT_EQ(focused(), "body");
  press(*composer_, Qt::Key_C, Qt::AltModifier);
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::cancelled));
}

TEST_F(ComposerWindows, EscapeCancelsWhatNobodyTouched) {
  open();
  press(*composer_, Qt::Key_Escape);
  settle();
  EXPECT_FALSE(isOpen());
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::cancelled));
}

TEST_F(ComposerWindows, EscapeAndCancelAskOnceSomethingWasTyped) {
  open();
  press(*composer_, Qt::Key_X);
  press(*composer_, Qt::Key_Escape);
  settle();
  ViewController* question = composer_->presentedViewController();
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(find<QLabel>(*question, "title").text().remove(QChar(0x200b)), "Discard this message?");
  press(*question, Qt::Key_Escape);  // keep writing
  settle();
  EXPECT_EQ(composer_->presentedViewController(), nullptr);
  click(*composer_, "cancel");
  settle();
  ASSERT_NE(composer_->presentedViewController(), nullptr);
  click(*composer_->presentedViewController(), "action2");  // keep writing
  settle();
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(body(), "Reason:\nx\nApp: x\n");
  EXPECT_THAT(delegate_->results, IsEmpty());
}

TEST_F(ComposerWindows, TheQuestionCanSaveADraft) {
  open();
  press(*composer_, Qt::Key_X);
  click(*composer_, "cancel");
  settle();
  click(*composer_->presentedViewController(), "action0");
  ASSERT_TRUE(waitForNotice("Saved to " + folder_.path("data/drafts/")));
  EXPECT_TRUE(notice().textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
  press(*composer_, Qt::Key_Return);  // Done
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
}

TEST_F(ComposerWindows, AWindowThatIsClosedKeepsWhatWasTyped) {
  open();
  press(*composer_, Qt::Key_X);
  EXPECT_TRUE(host_.close());
  ASSERT_TRUE(waitUntil([&] { return find<QWidget>(*composer_, "send").isEnabled(); }));
  EXPECT_THAT(onlyDraft(), testing::HasSubstr("\n\nReason:\nx\nApp: x\n"));
  host_.show();
  EXPECT_TRUE(isOpen());
}

TEST_F(ComposerWindows, WhatAClosedWindowKeptGoesWithADiscardedMessage) {
  open();
  press(*composer_, Qt::Key_X);
  host_.close();
  host_.show();
  ASSERT_TRUE(waitUntil([&] { return find<QWidget>(*composer_, "send").isEnabled(); }));
  EXPECT_EQ(drafts().size(), 1U);
  click(*composer_, "cancel");
  settle();
  ASSERT_NE(composer_->presentedViewController(), nullptr);
  click(*composer_->presentedViewController(), "action1");  // Discard
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(ComposerWindows, EscapeDoesNothingWhereTheScreenIsModal) {
  open();
  composer_->setModalInPresentation(true);
  press(*composer_, Qt::Key_Escape);
  settle();
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(noticeText(), "");
}

TEST_F(ComposerWindows, IsNamedForScreenReaders) {
  open();
  EXPECT_EQ(accessible("to").text(QAccessible::Name), "To");
  EXPECT_EQ(accessible("subject").text(QAccessible::Name), "Subject");
  EXPECT_EQ(accessible("body").text(QAccessible::Name), "Message");
  EXPECT_EQ(accessible("send").text(QAccessible::Name), "Send");
  EXPECT_EQ(accessible("save").text(QAccessible::Name), "Save draft");
  EXPECT_EQ(accessible("cancel").text(QAccessible::Name), "Cancel");
  EXPECT_EQ(accessible("attachmentSize").text(QAccessible::Name),
            "Attachment Receipt-Data.txt, 4 bytes");
  EXPECT_EQ(windowOf(*composer_).windowTitle(), "New message");
}

TEST_F(ComposerWindows, GivesItsNoticesToScreenReadersWithoutPlacesToBreak) {
  open("nobody");
  click(*composer_, "send");
  EXPECT_EQ(accessible("notice").text(QAccessible::Name), "“nobody” is not an e-mail address.");
}

TEST_F(ComposerWindows, ShowsTheAttachmentWithItsSize) {
  open();
  EXPECT_EQ(find<QLabel>(*composer_, "attachmentName").text().remove(QChar(0x200b)),
            "Receipt-Data.txt");
  EXPECT_EQ(find<QLabel>(*composer_, "attachmentSize").text(), "4 bytes");
}

}  // namespace
}  // namespace qv_commons::desktop
