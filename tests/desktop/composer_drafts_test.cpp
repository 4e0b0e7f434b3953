// Drafts of the composer: how they come to be, and how they are opened again.
#include <QMenu>

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ComposerDrafts : public ComposerTest {
 protected:
  void saveOne(const std::string& recipient, const std::string& subject, const std::string& text) {
    open(recipient, subject, text);
    saveDraft(*composer_);
    ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  }

  // Once it is there, the only one, and whole.
  void expectTypedDraft() {
    const auto isWhole = [&] {
      const std::vector<std::string> names = drafts();
      return names.size() == 1 && names.front().ends_with(".eml") && names.front()[0] != '.';
    };
    ASSERT_TRUE(waitUntil(isWhole));
    EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\nx\nApp: x\n"));
  }

  QPushButton& button() { return find<QPushButton>(*composer_, "drafts"); }

  QAction* actionFor(const std::string& subject) {
    for (QAction* action : button().menu()->actions()) {
      if (action->text().startsWith(QString::fromStdString(subject + ", "))) return action;
    }
    return nullptr;
  }

  // As the user does, from the menu.
  void openDraft(const std::string& subject) {
    ASSERT_TRUE(waitUntil([&] { return actionFor(subject) != nullptr; }));
    EXPECT_TRUE(button().isVisible());
    actionFor(subject)->trigger();
    ASSERT_TRUE(waitUntil([&] { return text("subject") == subject && button().isEnabled(); }));
  }
};

TEST_F(ComposerDrafts, ThereIsNoMenuWithoutThem) {
  open();
  settle();
  EXPECT_FALSE(button().isVisible());
}

TEST_F(ComposerDrafts, CanBeOpenedAgainAndSent) {
  saveOne("half@", "First", "one\r\n\xff");
  saveOne("support@example.com", "Second", "two");
  EXPECT_EQ(drafts().size(), 2U);
  open();
  openDraft("First");
  EXPECT_EQ(text("to"), "half@");
  EXPECT_EQ(find<QLabel>(*composer_, "attachmentName").text().remove(QChar(0x200b)),
            "Receipt-Data.txt");
  click(*composer_, "send");
  EXPECT_EQ(noticeText(), "“half@” is not an e-mail address.");
  click(*composer_, "to");
  press(*composer_, Qt::Key_End);
  type(*composer_, "example.com");
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\nTo: half@example.com\n"));
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nb25lDQr/\n"));  // one CR LF FF
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nWm05dg==\n"));
  EXPECT_THAT(onlyDraft(), HasSubstr("\nSubject: Second\n"));
}

TEST_F(ComposerDrafts, AreListedWithoutASubject) {
  saveOne("support@example.com", "", "one");
  open();
  ASSERT_TRUE(waitUntil([&] { return actionFor("(no subject)") != nullptr; }));
  actionFor("(no subject)")->trigger();
  EXPECT_TRUE(waitUntil([&] { return body() == "one"; }));
}

TEST_F(ComposerDrafts, StayWhereTheUserCancels) {
  saveOne("support@example.com", "First", "one");
  useMailProgram("exit 75");
  open();
  openDraft("First");
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Not sent."));
  click(*composer_, "cancel");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(onlyDraft(), HasSubstr("\nSubject: First\n"));
}

TEST_F(ComposerDrafts, KeepWhatWasTypedBeforeAnotherIsOpened) {
  saveOne("support@example.com", "First", "one");
  open("support@example.com", "Typed", "Reason:\n\n");
  press(*composer_, Qt::Key_X);
  openDraft("First");
  EXPECT_EQ(drafts().size(), 2U);
  EXPECT_EQ(body(), "one");
  openDraft("Typed");
  EXPECT_EQ(body(), "Reason:\nx\n");
}

TEST_F(ComposerDrafts, KeepWhatWasTypedWhereTheHostTakesTheComposerAway) {
  open();
  press(*composer_, Qt::Key_X);
  screen_->dismissViewController(true, nullptr);
  expectTypedDraft();
  composer_.reset();
  settle();
  EXPECT_EQ(drafts().size(), 1U);
  EXPECT_THAT(delegate_->results, IsEmpty());
}

TEST_F(ComposerDrafts, KeepNothingOfAComposerThatNobodyTouched) {
  open();
  screen_->dismissViewController(true, nullptr);
  settle();
  composer_.reset();
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(ComposerDrafts, KeepWhatWasTypedWhereThePlatformGoes) {
  open();
  press(*composer_, Qt::Key_X);
  composer_.reset();
  screen_.reset();
  desktop_.reset();
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\nx\nApp: x\n"));
}

TEST_F(ComposerDrafts, KeepTheMessageOfAComposerThatIsTakenAwayWhileItSends) {
  useMailProgram("exec sleep 1000");
  open();
  press(*composer_, Qt::Key_X);
  click(*composer_, "send");
  screen_->dismissViewController(true, nullptr);
  composer_.reset();
  expectTypedDraft();
}

TEST_F(ComposerDrafts, KeepTheMessageOfAComposerThatIsTakenAwayWhileTheProgramRuns) {
  useMailProgram("echo >\"" + folder_.path("started") + "\"; exec sleep 1000");
  open();
  press(*composer_, Qt::Key_X);
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !readFile(folder_.path("started")).empty(); }));
  screen_->dismissViewController(true, nullptr);
  composer_.reset();
  settle();
  expectTypedDraft();
}

TEST_F(ComposerDrafts, KeepTheMessageOfAComposerThatIsTakenAwayWhileItSaves) {
  open();
  press(*composer_, Qt::Key_X);
  click(*composer_, "save");
  screen_->dismissViewController(true, nullptr);
  composer_.reset();
  expectTypedDraft();
}

TEST_F(ComposerDrafts, KeepWhatWasTypedWhereThePlatformGoesWhileItSends) {
  useMailProgram("exec sleep 1000");
  open();
  press(*composer_, Qt::Key_X);
  click(*composer_, "send");
  composer_.reset();
  screen_.reset();
  desktop_.reset();
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\nx\nApp: x\n"));
}

TEST_F(ComposerDrafts, TellTheHostWhatCouldNotBeKept) {
  folder_.write("data", "a file in the folder's place");
  std::vector<std::string> told;
  settings_.onError = [&](const std::string& problem) { told.push_back(problem); };
  open();
  told.clear();  // what the settings' file has to say
  press(*composer_, Qt::Key_X);
  screen_->dismissViewController(true, nullptr);
  ASSERT_TRUE(waitUntil([&] { return !told.empty(); }));
  EXPECT_THAT(
      told, ElementsAre("The folder " + folder_.path("data") + " can't be made: Not a directory."));
}

TEST_F(ComposerDrafts, OfKilledWritersAreGoneAtTheNextStart) {
  folder_.write("data/drafts/.1.eml.unfinished", "half");
  open();
  EXPECT_THAT(drafts(), IsEmpty());
}

}  // namespace
}  // namespace qv_commons::desktop
