// What becomes of a message that the user sends, saves or cancels.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/file_descriptor.h"

#include "tests/desktop/composer_fixture.h"
#include "tests/support_code/sanitized.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// What a program waits at until the test lets it go on.
class Gate {
 public:
  explicit Gate(std::string path) : path_(std::move(path)), pipe_(openPipe(path_)) {}
  std::string wait() const { return "read go <\"" + path_ + "\""; }
  void open() const { EXPECT_TRUE(writeAll(pipe_, "\n")); }

 private:
  static int openPipe(const std::string& path) {
    EXPECT_EQ(::mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
    return ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  }

  std::string path_;
  FileDescriptor pipe_;
};

class ComposerSending : public ComposerTest {
 protected:
  // Sends with a program that fails, and expects that nothing is lost.
  void expectFailure(const std::string& reason) {
    open();
    press(*composer_, Qt::Key_X);
    click(*composer_, "send");
    ASSERT_TRUE(waitForNotice("Not sent.")) << noticeText();
    EXPECT_THAT(noticeText(), StartsWith("Not sent. " + reason + "\nA copy is kept as "));
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(delegate_->results, IsEmpty());
    EXPECT_EQ(text("to"), "support@example.com");
    EXPECT_EQ(text("subject"), "Help");
    EXPECT_EQ(body(), "Reason:\nx\nApp: x\n");
    EXPECT_TRUE(find<QPushButton>(*composer_, "send").isEnabled());
    EXPECT_FALSE(find<QPlainTextEdit>(*composer_, "body").isReadOnly());
    EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\nx\nApp: x\n"));
  }

  Gate gate_{folder_.path("gate")};
};

TEST_F(ComposerSending, HandsTheMessageToTheMailProgram) {
  settings_.sendmailArguments = {"-C", "a file; rm -rf $HOME"};
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
  EXPECT_EQ(readFile(folder_.path("arguments")), "-C a file; rm -rf $HOME -t -i\n");
  EXPECT_THAT(readFile(folder_.path("sent")),
              HasSubstr("\nSubject: Help\nTo: support@example.com\n"));
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nReason:\n\nApp: x\n"));
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(ComposerSending, SendsWhatTheUserMadeOfTheMessage) {
  open();
  QLineEdit& subject = find<QLineEdit>(*composer_, "subject");
  click(subject);
  press(*composer_, Qt::Key_End);
  type(*composer_, " me");
  click(*composer_, "body");
  press(*composer_, Qt::Key_Home, Qt::ControlModifier);
  type(*composer_, "Hi. ");
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\nSubject: Help me\n"));
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nHi. Reason:\n\nApp: x\n"));
}

TEST_F(ComposerSending, SaysThatItSendsAndSendsOnce) {
  useMailProgram("cat >>\"" + folder_.path("sent") + "\"; echo run >>\"" + folder_.path("runs") +
                 "\"; " + gate_.wait());
  open();
  click(*composer_, "send");
  EXPECT_EQ(noticeText(), "Sending…");
  EXPECT_FALSE(find<QPushButton>(*composer_, "send").isEnabled());
  EXPECT_FALSE(find<QPushButton>(*composer_, "save").isEnabled());
  EXPECT_TRUE(find<QLineEdit>(*composer_, "to").isReadOnly());
  EXPECT_TRUE(find<QLineEdit>(*composer_, "subject").isReadOnly());
  EXPECT_TRUE(find<QPlainTextEdit>(*composer_, "body").isReadOnly());
  click(*composer_, "send");
  press(*composer_, Qt::Key_Return, Qt::ControlModifier);
  press(*composer_, Qt::Key_S, Qt::ControlModifier);
  press(*composer_, Qt::Key_Escape);
  settle();
  EXPECT_TRUE(isOpen());
  gate_.open();
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_EQ(readFile(folder_.path("runs")), "run\n");
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
}

TEST_F(ComposerSending, SaysThatTheServerRefused) {
  useMailProgram("echo 'recipient not accepted' >&2; exit 65");
  expectFailure("The mail server refused the address or the message. (recipient not accepted)");
}

TEST_F(ComposerSending, SaysThatTheServerCannotBeReached) {
  useMailProgram("exit 75");
  expectFailure("The mail server can't be reached at the moment. Please try again later.");
}

TEST_F(ComposerSending, SaysThatMailIsNotSetUp) {
  useMailProgram("exit 78");
  expectFailure("Mail is not set up on this computer.");
}

TEST_F(ComposerSending, SaysWithWhichCodeTheProgramFailed) {
  useMailProgram("exit 3");
  expectFailure("The mail program failed with code 3.");
}

TEST_F(ComposerSending, SaysWhatEveryCodeOfMailProgramsMeans) {
  open();
  const std::string cannotBeReached =
      "The mail server can't be reached at the moment. Please try again later.";
  const std::vector<std::pair<int, std::string>> meanings = {
      {67, "The mail server refused the address or the message."},
      {68, cannotBeReached},
      {77, "You are not allowed to send mail."},
      {69, cannotBeReached}};
  for (const auto& [code, meaning] : meanings) {
    useMailProgram("exit " + std::to_string(code));
    click(*composer_, "send");
    EXPECT_TRUE(waitForNotice("Not sent. " + meaning + "\n")) << code << noticeText();
  }
  EXPECT_TRUE(isOpen());
}

TEST_F(ComposerSending, ShortensALongComplaint) {
  useMailProgram("head -c 5000 /dev/zero | tr '\\0' 'x' >&2; echo end >&2; exit 3");
  expectFailure("The mail program failed with code 3. (…" + std::string(297, 'x') + "end)");
}

TEST_F(ComposerSending, SaysThatTheProgramCrashed) {
  useMailProgram("kill -SEGV $$");
  expectFailure("The mail program crashed.");
}

TEST_F(ComposerSending, SaysThatTheProgramCannotBeStarted) {
  useMailProgram("");
  folder_.write("sendmail", "#!/nonexistent/interpreter\n");
  expectFailure("The mail program " + folder_.path("sendmail") + " can't be started.");
}

TEST_F(ComposerSending, EndsAProgramThatHangsWithAllItStarted) {
  useMailProgram("sleep 1000 & echo $! >\"" + folder_.path("child") + "\"; echo $$ >\"" +
                 folder_.path("program") + "\"; wait");
  settings_.sendTimeout = std::chrono::milliseconds(300);
  expectFailure("The mail program took too long and was ended.");
  for (const char* name : {"child", "program"}) {
    const std::string status =
        "/proc/" + std::to_string(std::stoi(readFile(folder_.path(name)))) + "/status";
    EXPECT_TRUE(waitUntil([&] {
      const std::string text = readFile(status);
      return text.empty() || text.find("State:\tZ") != std::string::npos;
    })) << name;
  }
}

TEST_F(ComposerSending, SaysThatTheProgramIsGone) {
  open();
  folder_.writeProgram("sendmail", "");
  ASSERT_EQ(std::remove(settings_.sendmailProgram.c_str()), 0);
  click(*composer_, "send");
  EXPECT_TRUE(waitForNotice("Not sent. This computer has no mail program.\n")) << noticeText();
  EXPECT_TRUE(isOpen());
  EXPECT_THAT(onlyDraft(), HasSubstr("\n\nReason:\n\nApp: x\n"));
}

TEST_F(ComposerSending, CanBeStopped) {
  useMailProgram("echo >\"" + folder_.path("started") + "\"; exec sleep 1000");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !readFile(folder_.path("started")).empty(); }));
  EXPECT_EQ(find<QPushButton>(*composer_, "cancel").text(), "Stop");
  click(*composer_, "cancel");
  ASSERT_TRUE(
      waitForNotice("Not sent. Sending was stopped. The message may have been sent all the "
                    "same.\n"));
  EXPECT_EQ(find<QPushButton>(*composer_, "cancel").text(), "Cancel");
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(drafts().size(), 1u);
}

TEST_F(ComposerSending, CanBeTriedAgain) {
  useMailProgram("exit 75");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Not sent."));
  useMailProgram("cat >\"" + folder_.path("sent") + "\"");
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(ComposerSending, AFailedMessageThatIsCancelledIsCancelled) {
  useMailProgram("exit 75");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Not sent."));
  EXPECT_EQ(drafts().size(), 1u);
  click(*composer_, "cancel");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::cancelled));
  EXPECT_THAT(drafts(), IsEmpty());
}

TEST_F(ComposerSending, EndsTheProgramWhenItIsTakenAwayMeanwhile) {
  useMailProgram("echo $$ >\"" + folder_.path("program") + "\"; exec sleep 1000");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !readFile(folder_.path("program")).empty(); }));
  const std::string program = readFile(folder_.path("program"));
  screen_->dismissViewController(true, nullptr);
  composer_.reset();
  settle();
  EXPECT_EQ(readFile("/proc/" + std::to_string(std::stoi(program)) + "/status"), "");
  EXPECT_THAT(delegate_->results, IsEmpty());
  EXPECT_EQ(drafts().size(), 1u);
}

TEST_F(ComposerSending, RefusesAnAddressThatWouldForgeHeaders) {
  open("support@example.com\r\nBcc: eve@example.com");
  click(*composer_, "send");
  settle();
  EXPECT_EQ(noticeText(),
            "The address holds a line break or another control character. Please take it out.");
  EXPECT_TRUE(isOpen());
  EXPECT_TRUE(find<QLineEdit>(*composer_, "to").hasFocus());
  EXPECT_EQ(text("to"), "support@example.com\r\nBcc: eve@example.com");
  EXPECT_EQ(readFile(folder_.path("sent")), "");
  EXPECT_THAT(drafts(), IsEmpty());
  saveDraft(*composer_);
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(onlyDraft(), testing::Not(HasSubstr("\nBcc")));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
}

TEST_F(ComposerSending, RefusesASubjectThatWouldForgeHeaders) {
  open("support@example.com", std::string("Help\0me\nBcc: eve@example.com", 28));
  click(*composer_, "send");
  settle();
  EXPECT_EQ(noticeText(),
            "The subject holds a line break or another control character. Please take it out.");
  EXPECT_TRUE(find<QLineEdit>(*composer_, "subject").hasFocus());
  EXPECT_EQ(text("subject"), std::string("Help\0me\nBcc: eve@example.com", 28));
  EXPECT_THAT(drafts(), IsEmpty());

  press(*composer_, Qt::Key_H);  // takes the place of the whole subject, which is selected
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\nSubject: h\n"));
}

TEST_F(ComposerSending, RefusesHalfOfAnAddressWithAComma) {
  open("first,last@example.com");
  click(*composer_, "send");
  EXPECT_EQ(noticeText(), "“first” is not an e-mail address.");
  EXPECT_EQ(text("to"), "first,last@example.com");
  EXPECT_EQ(readFile(folder_.path("sent")), "");
}

TEST_F(ComposerSending, SavesADraft) {
  open();
  saveDraft(*composer_);
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::saved));
  EXPECT_THAT(onlyDraft(), HasSubstr("\nSubject: Help\nTo: support@example.com\n"));
  EXPECT_EQ(readFile(folder_.path("sent")), "");
}

TEST_F(ComposerSending, SaysWhyADraftCannotBeSaved) {
  folder_.write("data", "a file in the folder's place");
  open();
  click(*composer_, "save");
  ASSERT_TRUE(waitForNotice("Not saved. "));
  EXPECT_EQ(noticeText(),
            "Not saved. The folder " + folder_.path("data") + " can't be made: Not a directory.");
  EXPECT_TRUE(isOpen());
  EXPECT_THAT(delegate_->results, IsEmpty());
}

TEST_F(ComposerSending, SendsWhereNoCopyCanBeKept) {
  folder_.write("data", "a file in the folder's place");
  useMailProgram("cat >\"" + folder_.path("sent") + "\"; " + gate_.wait());
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Sending… No copy is kept: The folder " + folder_.path("data")));
  gate_.open();
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(readFile(folder_.path("sent")), HasSubstr("\n\nReason:\n\nApp: x\n"));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
}

TEST_F(ComposerSending, SaysThatNothingWasSentAndNoCopyKept) {
  folder_.write("data", "a file in the folder's place");
  useMailProgram("exit 75");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Not sent. The mail server can't be reached"));
  EXPECT_THAT(noticeText(), HasSubstr("\nNo copy is kept: The folder "));
}

TEST_F(ComposerSending, LeavesTheSenderToTheMailProgramWhereNoneCanBeMade) {
  settings_.senderAddress = "ada lovelace";
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_THAT(readFile(folder_.path("sent")), testing::Not(HasSubstr("From:")));
}

// A program that says 20 MB at its second run: the host takes none of it but the end. What any
// notice needs, the first has brought in.
TEST_F(ComposerSending, KeepsTheEndOfAFloodOfComplaints) {
  if (test::kIsSanitized) GTEST_SKIP() << "a sanitizer keeps freed memory";
  const std::string mark = "\"" + folder_.path("ran") + "\"";
  useMailProgram("if [ -e " + mark + " ]; then head -c 20000000 /dev/zero >&2; echo end >&2; " +
                 "else touch " + mark + "; echo begin >&2; fi; exit 3");
  open();
  click(*composer_, "send");
  ASSERT_TRUE(waitForNotice("Not sent."));
  EXPECT_THAT(noticeText(), HasSubstr("begin)"));
  rusage before = {};
  ::getrusage(RUSAGE_SELF, &before);
  click(*composer_, "send");
  ASSERT_TRUE(waitUntil([&] { return noticeText().find("end)") != std::string::npos; }));
  rusage after = {};
  ::getrusage(RUSAGE_SELF, &after);
  EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 10'000);  // kilobytes
}

TEST_F(ComposerSending, AsksBeforeAChangedHeadIsLost) {
  for (const char* field : {"to", "subject"}) {
    open();
    click(*composer_, field);
    press(*composer_, Qt::Key_X);
    click(*composer_, "cancel");
    settle();
    EXPECT_TRUE(isOpen()) << field;
    ASSERT_NE(composer_->presentedViewController(), nullptr) << field;
    click(*composer_->presentedViewController(), "action1");  // Discard
    ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  }
}

TEST_F(ComposerSending, ShowsEveryRecipient) {
  open();
  composer_->setToRecipients({"a@example.com", "b@example.com"});
  EXPECT_EQ(text("to"), "a@example.com, b@example.com");
}

TEST_F(ComposerSending, CancelsWithoutATrace) {
  open();
  press(*composer_, Qt::Key_X);
  click(*composer_, "cancel");
  click(*composer_->presentedViewController(), "action1");  // Discard
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::cancelled));
  EXPECT_THAT(drafts(), IsEmpty());
  EXPECT_EQ(readFile(folder_.path("sent")), "");
}

TEST_F(ComposerSending, GoesByItselfWhereItsDelegateIsGone) {
  open();
  delegate_.reset();
  click(*composer_, "send");
  EXPECT_TRUE(waitUntil([&] { return !isOpen(); })) << noticeText();
  EXPECT_EQ(screen_->presentedViewController(), nullptr);
}

TEST_F(ComposerSending, CarriesOnWhileAnotherComposerIsOpenAbove) {
  useMailProgram("cat >\"" + folder_.path("sent") + "\"; " + gate_.wait());
  open();
  click(*composer_, "send");
  const auto above = desktop_->platform().viewControllers.makeMailComposer();
  screen_->presentViewController(above, true, nullptr);
  settle();
  gate_.open();
  ASSERT_TRUE(waitUntil([&] { return !isOpen(); }));
  EXPECT_THAT(delegate_->results, ElementsAre(MailComposeResult::sent));
  EXPECT_TRUE(isOnScreen(*above));
  click(*above, "cancel");
  settle();
  EXPECT_FALSE(isOnScreen(*above));
}

}  // namespace
}  // namespace qv_commons::desktop
