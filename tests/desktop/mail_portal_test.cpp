// Mail by the desktop's portal, over a real session bus, where a program plays the portal.
#include <QProcess>
#include <QTest>

#include "tests/desktop/composer_fixture.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class MailPortal : public ComposerTest {
 protected:
  MailPortal() {
    settings_.mailWays = {MailWay::portal};
    folder_.write("got/nothing", "");
  }
  ~MailPortal() override { endPortal(); }

  void usePortal(const QString& role) {
    portal_.start(qEnvironmentVariable("MAIL_PORTAL_DOUBLE"),
                  {role, QString::fromStdString(folder_.path("got"))});
    ASSERT_TRUE(portal_.waitForReadyRead(10000));
    ASSERT_EQ(portal_.readAllStandardOutput(), "ready\n");
  }

  void endPortal() {
    portal_.kill();
    portal_.waitForFinished();
  }

  bool canSendMail() { return desktop_->platform().viewControllers.canSendMail(); }
  std::string got(const std::string& name) { return readFile(folder_.path("got/" + name)); }

  // Opens a composer that the portal doesn't take the message from.
  void expectFailure(const std::string& reason) {
    present();
    ASSERT_TRUE(waitForNotice("Not handed over to your mail program. ")) << noticeText();
    EXPECT_EQ(noticeText(), "Not handed over to your mail program. " + reason);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(text("to"), "support@example.com");
    EXPECT_EQ(text("subject"), "Help");
    EXPECT_EQ(body(), "Reason:\n\nApp: x\n");
    EXPECT_THAT(delegate_->results, IsEmpty());
    saveDraft(*composer_);
    EXPECT_THAT(onlyDraft(), HasSubstr("\n\nWm05dg==\n"));
  }

  QProcess portal_;
};

TEST_F(MailPortal, OpensTheUsersMailProgram) {
  usePortal("opens");
  present();
  EXPECT_EQ(noticeText(), "Opening your mail program…");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
  EXPECT_THAT(folder_.list("got"), ElementsAre("address", "body", "file Receipt-Data.txt",
                                               "nothing", "subject", "window"));
  EXPECT_EQ(got("address"), "support@example.com");
  EXPECT_EQ(got("subject"), "Help");
  EXPECT_EQ(got("body"), "Reason:\n\nApp: x\n");
  EXPECT_EQ(got("file Receipt-Data.txt"), "Zm9v");
  EXPECT_EQ(got("window"), "");
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(MailPortal, TakesSeveralAddresses) {
  usePortal("opens");
  present("Ada <a@example.com>, b@example.com");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_EQ(got("addresses"), "a@example.com|b@example.com");
}

TEST_F(MailPortal, IsLeftWhereTheUserChoosesNoProgram) {
  usePortal("refuses");
  present();
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::cancelled));
}

TEST_F(MailPortal, KeepsTheMessageWhereItFails) {
  usePortal("fails");
  expectFailure("The desktop's mail portal could not open a mail program.");
}

TEST_F(MailPortal, KeepsTheMessageWhereItIsNotTaken) {
  usePortal("errs");
  expectFailure("The desktop's mail portal says: no luck.");
}

TEST_F(MailPortal, KeepsTheMessageWhereThePortalGoes) {
  usePortal("goes");
  expectFailure("The desktop's mail portal has gone.");
}

TEST_F(MailPortal, IsClosedWhereTheUserStops) {
  usePortal("waits");
  present();
  ASSERT_TRUE(waitUntil([&] { return !got("subject").empty(); }));
  EXPECT_TRUE(isOpen());
  click(*composer_, "cancel");
  ASSERT_TRUE(waitUntil([&] { return !got("closed").empty(); }));
  EXPECT_THAT(got("closed"), StartsWith("/org/freedesktop/portal/desktop/request/"));
  EXPECT_TRUE(isOpen());
  EXPECT_THAT(noticeText(), HasSubstr("It was stopped."));
}

TEST_F(MailPortal, LeavesItToTheNextWay) {
  usePortal("fails");
  settings_.mailWays = {MailWay::portal, MailWay::xdgEmail};
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(folder_.path("bin") + ":") + path);
  folder_.write("bin/xdg-email", "");
  folder_.writeProgram("bin/xdg-email", "echo \"$3\" >\"" + folder_.path("xdg") + "\"");
  present();
  EXPECT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  qputenv("PATH", path);
  EXPECT_EQ(got("subject"), "Help");
  EXPECT_EQ(readFile(folder_.path("xdg")), "Help\n");
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
}

// However often a host asks.
TEST_F(MailPortal, IsAskedOnceWhetherItIsThere) {
  usePortal("no mail");
  desktop_.emplace(settings_);
  ASSERT_TRUE(waitUntil([&] { return !canSendMail(); }));
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(canSendMail());
  settle();
  EXPECT_EQ(portal_.readAllStandardOutput(), "asked\n");
}

TEST_F(MailPortal, CountsAsThereUntilItAnswers) {
  usePortal("silent");
  desktop_.emplace(settings_);
  EXPECT_TRUE(canSendMail());
  endPortal();
  EXPECT_TRUE(waitUntil([&] { return !canSendMail(); }));
}

TEST_F(MailPortal, IsNoWayWhereNothingAnswersForIt) {
  desktop_.emplace(settings_);
  EXPECT_TRUE(waitUntil([&] { return !canSendMail(); }));
}

}  // namespace
}  // namespace qv_commons::desktop
