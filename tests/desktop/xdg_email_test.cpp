// Mail where the machine has xdg-email and no sendmail: a program of that name in PATH takes what
// it is given.
#include "qv_commons/platform/desktop/xdg_email.h"

#include <csignal>

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class XdgEmails : public ComposerTest {
 protected:
  XdgEmails() {
    settings_.mailWays = {MailWay::xdgEmail};
    qputenv("PATH", QByteArray::fromStdString(folder_.path("bin") + ":") + path_);
    useXdgEmail("for argument; do printf '%s|' \"$argument\"; done >\"" +
                folder_.path("xdg-arguments") + "\"; cat \"$7\" >\"" + folder_.path("attached") +
                "\"");
  }
  ~XdgEmails() override { qputenv("PATH", path_); }

  void useXdgEmail(const std::string& script) {
    folder_.write("bin/xdg-email", "");
    folder_.writeProgram("bin/xdg-email", script);
  }

  bool canSendMail() { return desktop_->platform().viewControllers.canSendMail(); }

  const QByteArray path_ = qgetenv("PATH");
};

TEST_F(XdgEmails, OpensTheUsersMailProgram) {
  present();
  EXPECT_TRUE(canSendMail());
  EXPECT_EQ(noticeText(), "Opening your mail program…");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
  const std::vector<std::string> names = folder_.list("data/handed-over");
  ASSERT_EQ(names.size(), 1U);
  EXPECT_EQ(readFile(folder_.path("xdg-arguments")),
            "--utf8|--subject|Help|--body|Reason:\n\nApp: x\n|--attach|" +
                folder_.path("data/handed-over/" + names[0] + "/Receipt-Data.txt") +
                "|support@example.com|");
  EXPECT_EQ(readFile(folder_.path("attached")), "Zm9v");
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(XdgEmails, KeepsTheMessageWhereNoMailProgramOpens) {
  useXdgEmail("exit 3");
  present();
  ASSERT_TRUE(waitForNotice(
      "Not handed over to your mail program. This computer has no mail program that xdg-email "
      "knows."));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(text("to"), "support@example.com");
  EXPECT_EQ(body(), "Reason:\n\nApp: x\n");
  EXPECT_THAT(delegate_->results, IsEmpty());
  saveDraft(*composer_);
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nWm05dg==\n"));
}

TEST_F(XdgEmails, HandsOverAgainWhatTheUserMadeOfIt) {
  useXdgEmail("exit 4");
  present();
  ASSERT_TRUE(waitForNotice(
      "Not handed over to your mail program. xdg-email could not open a mail program."));
  click(*composer_, "body");
  press(*composer_, Qt::Key_Home, Qt::ControlModifier);
  type(*composer_, "Hi. ");
  useXdgEmail("printf '%s' \"$5\" >\"" + folder_.path("body") + "\"");
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_EQ(readFile(folder_.path("body")), "Hi. Reason:\n\nApp: x\n");
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
}

TEST_F(XdgEmails, SaysWhatIsWrongWithTheAddressInstead) {
  present("half@");
  ASSERT_TRUE(waitForNotice("“half@” is not an e-mail address."));
  EXPECT_TRUE(find<QAbstractButton>(*composer_, "send").isEnabled());
  EXPECT_EQ(readFile(folder_.path("xdg-arguments")), "");
}

TEST_F(XdgEmails, CanBeStopped) {
  useXdgEmail("echo >\"" + folder_.path("started") + "\"; exec sleep 5");
  present();
  ASSERT_TRUE(waitUntil([&] { return !readFile(folder_.path("started")).empty(); }));
  click(*composer_, "cancel");
  EXPECT_EQ(noticeText(),
            "Not handed over to your mail program. It was stopped. Your mail program may open all "
            "the same.");
  EXPECT_TRUE(isOpen());
}

TEST_F(XdgEmails, LeavesNothingOfAComposerThatIsTakenAwayUntouched) {
  useXdgEmail("echo >\"" + folder_.path("started") + "\"; exec sleep 5");
  present();
  ASSERT_TRUE(waitUntil([&] { return !readFile(folder_.path("started")).empty(); }));
  screen_->dismissViewController(true, nullptr);
  composer_.reset();
  settle();
  EXPECT_THAT(drafts(), IsEmpty());
  EXPECT_THAT(delegate_->results, IsEmpty());
}

TEST_F(XdgEmails, ComesAfterWhatStandsBeforeIt) {
  settings_.mailWays = {MailWay::sendmail, MailWay::portal, MailWay::xdgEmail};
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
  EXPECT_EQ(readFile(folder_.path("xdg-arguments")), "");
}

TEST_F(XdgEmails, LeavesItToSendmailWhereItFails) {
  settings_.mailWays = {MailWay::xdgEmail, MailWay::sendmail};
  useXdgEmail("exit 1");
  present();
  ASSERT_TRUE(waitForNotice(
      "Not handed over to your mail program. xdg-email failed with code 1.\nYou can send the "
      "message from here."));
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nReason:\n\nApp: x\n"));
}

TEST_F(XdgEmails, IsNoWayWhereItIsNotThere) {
  ASSERT_EQ(std::remove(folder_.path("bin/xdg-email").c_str()), 0);
  qputenv("PATH", QByteArray::fromStdString(folder_.path("bin")));
  settings_.mailWays = {MailWay::portal, MailWay::xdgEmail};
  desktop_.emplace(settings_);
  EXPECT_FALSE(canSendMail());
}

TEST_F(XdgEmails, IsTheMailProgramWhereItDoesNotComeBack) {
  useXdgEmail("echo $$ >\"" + folder_.path("program") + "\"; exec sleep 1000");
  std::vector<MailHandOver::Outcome> outcomes;
  auto attempt = std::make_unique<XdgEmail>(
      HandedMail{{"a@example.com"}, "", "", {}},
      [&](MailHandOver::Outcome outcome, const Failure&) { outcomes.push_back(outcome); },
      std::chrono::milliseconds(300));
  ASSERT_TRUE(waitUntil([&] { return !outcomes.empty(); }));
  EXPECT_THAT(outcomes, ElementsAre(MailHandOver::Outcome::opened));
  attempt.reset();
  const int program = std::stoi(readFile(folder_.path("program")));
  EXPECT_EQ(::kill(program, 0), 0);
  ::kill(program, SIGKILL);
}

}  // namespace
}  // namespace qv_commons::desktop
