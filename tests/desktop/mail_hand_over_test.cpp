// What the desktop's mail program gets of a message.
#include "qv_commons/platform/desktop/mail_hand_over.h"

#include <ctime>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MailMessage messageWith(const std::string& body) {
  return {.recipients = "Support Team <support@example.com>, b@example.com",
          .subject = "Grüße",
          .body = body,
          .attachments = {std::make_shared<const MailAttachment>(
              MailAttachment{"Zm9v", "Text/XML", "Receipt-Data.txt"})}};
}

class HandedMails : public testing::Test {
 protected:
  HandedMail handed(const MailMessage& message) const {
    const Result<HandedMail> mail = makeHandedMail(message, folder_.path("files"), "1", false);
    EXPECT_TRUE(mail.value) << saidOf(mail.failure);
    return mail.value.value_or(HandedMail{});
  }

  TestFolder folder_;
};

TEST_F(HandedMails, HoldWhatTheMessageHolds) {
  const HandedMail mail = handed(messageWith("Reason:\n\nü & = ?\n"));
  EXPECT_THAT(mail.addresses, ElementsAre("support@example.com", "b@example.com"));
  EXPECT_EQ(mail.subject.toStdString(), "Grüße");
  EXPECT_EQ(mail.body.toStdString(), "Reason:\n\nü & = ?\n");
  ASSERT_EQ(mail.files.size(), 1);
  EXPECT_EQ(mail.files[0].toStdString(), folder_.path("files/1-1/Receipt-Data.txt"));
  EXPECT_EQ(readFile(mail.files[0].toStdString()), "Zm9v");
}

TEST_F(HandedMails, AreForTheUsersEyesAlone) {
  const HandedMail mail = handed(messageWith(""));
  struct stat status = {};
  ASSERT_EQ(::stat(mail.files[0].toStdString().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600U);
  ASSERT_EQ(::stat(folder_.path("files/1-1").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700U);
}

// A link carries three characters for most bytes and six for a line end, and has room for 100,000.
TEST_F(HandedMails, CarryAsAFileWhatIsNoShortText) {
  const std::string longest(16'666, '\n');
  EXPECT_EQ(handed(messageWith(longest)).body.toStdString(), longest);
  EXPECT_EQ(handed(messageWith(std::string(33'333, '='))).body, QString(33'333, '='));
  for (const char plain : {'a', 'z', 'A', 'Z', '0', '9'}) {
    EXPECT_EQ(handed(messageWith(std::string(100'000, plain))).body, QString(100'000, plain));
  }
  for (const char other : {'`', '{', '@', '[', '/', ':'}) {
    EXPECT_EQ(handed(messageWith(std::string(33'334, other))).files.size(), 2) << other;
  }
  for (const std::string& body :
       {longest + "\n", std::string(1'000'000, 'x'), std::string("a\0b", 3), std::string("\xff")}) {
    const HandedMail mail = handed(messageWith(body));
    EXPECT_EQ(
        mail.body,
        "My message is in the attached file Message.txt: it could not be handed over as text.");
    ASSERT_EQ(mail.files.size(), 2);
    EXPECT_EQ(mail.files[1].toStdString(), folder_.path("files/1-2/Message.txt"));
    EXPECT_TRUE(readFile(mail.files[1].toStdString()) == body);
  }
  MailMessage page = messageWith("<p>Help</p>");
  page.isHTML = true;
  EXPECT_EQ(readFile(handed(page).files[1].toStdString()), "<p>Help</p>");
}

TEST_F(HandedMails, LeaveTheirFolderByNoName) {
  for (const auto& [name, file] :
       {std::pair{"../../a.txt", "files/1-1/a.txt"}, std::pair{"..", "files/1-1/attachment"},
        std::pair{".", "files/1-1/attachment"}, std::pair{"a/", "files/1-1/attachment"}}) {
    MailMessage message = messageWith("");
    message.attachments = {
        std::make_shared<const MailAttachment>(MailAttachment{"x", "text/plain", name})};
    EXPECT_EQ(handed(message).files[0].toStdString(), folder_.path(file));
  }
}

TEST_F(HandedMails, LeaveNothingWhereTheyAreStopped) {
  const Result<HandedMail> mail =
      makeHandedMail(messageWith("x"), folder_.path("files"), "1", true);
  EXPECT_FALSE(mail.value);
  EXPECT_THAT(folder_.list("files"), IsEmpty());
}

TEST_F(HandedMails, SayWhyTheirFilesCannotBeWritten) {
  folder_.write("files", "a file in the folder's place");
  EXPECT_EQ(saidOf(makeHandedMail(messageWith("x"), folder_.path("files"), "1", false).failure),
            "The folder " + folder_.path("files") + " can't be made: Not a directory.");
}

TEST_F(HandedMails, AreTakenAwayAfterAWeek) {
  handed(messageWith(""));
  folder_.write("files/old/a.txt", "x");
  const std::time_t before = std::time(nullptr) - 7 * 24 * 60 * 60 - 60;
  const timespec times[] = {{before, 0}, {before, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, folder_.path("files/old").c_str(), times, 0), 0);
  removeOldHandedMail(folder_.path("files"));
  EXPECT_THAT(folder_.list("files"), ElementsAre("1-1"));
  removeOldHandedMail(folder_.path("no such folder"));
}

}  // namespace
}  // namespace qv_commons::desktop
