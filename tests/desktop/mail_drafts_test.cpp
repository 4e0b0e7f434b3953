#include "qv_commons/platform/desktop/mail_drafts.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Failure keep(const std::string& directory, const std::string& name, std::string_view bytes) {
  return writeDraft(directory, name, [&](const MailSink& sink) { return sink(bytes); });
}

TEST(MailDrafts, AreFilesOfTheUsersAlone) {
  const TestFolder folder;
  const mode_t before = ::umask(0);
  EXPECT_EQ(keep(folder.path("data/drafts"), "1.eml", "Subject: Help\n"), std::nullopt);
  ::umask(before);
  EXPECT_EQ(readFile(folder.path("data/drafts/1.eml")), "Subject: Help\n");
  struct stat status = {};
  ASSERT_EQ(::stat(folder.path("data/drafts/1.eml").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
  EXPECT_THAT(folder.list("data/drafts"), ElementsAre("1.eml"));
  for (const char* made : {"data", "data/drafts"}) {
    ASSERT_EQ(::stat(folder.path(made).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u) << made;
  }
}

TEST(MailDrafts, ReplaceAnEarlierOne) {
  const TestFolder folder;
  EXPECT_EQ(keep(folder.path("drafts"), "1.eml", "a long first text"), std::nullopt);
  EXPECT_EQ(keep(folder.path("drafts"), "1.eml", "short"), std::nullopt);
  EXPECT_EQ(readFile(folder.path("drafts/1.eml")), "short");
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
}

TEST(MailDrafts, GetOverWhatAKilledWriterLeftBehind) {
  const TestFolder folder;
  folder.write("drafts/.1.eml.unfinished", "half of a much longer text");
  EXPECT_EQ(keep(folder.path("drafts"), "1.eml", "whole"), std::nullopt);
  EXPECT_EQ(readFile(folder.path("drafts/1.eml")), "whole");
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
}

TEST(MailDrafts, SayWhyTheirFolderCannotBeMade) {
  const TestFolder folder;
  folder.write("data", "a file in the folder's place");
  EXPECT_EQ(saidOf(keep(folder.path("data/drafts"), "1.eml", "x")),
            "The folder " + folder.path("data") + " can't be made: Not a directory.");
}

TEST(MailDrafts, LeaveTheOldOneWhereTheNewOneCannotTakeItsPlace) {
  const TestFolder folder;
  folder.write("drafts/1.eml/inside", "old");
  EXPECT_EQ(saidOf(keep(folder.path("drafts"), "1.eml", "new")),
            folder.path("drafts/1.eml") + " can't be written: Is a directory.");
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
  EXPECT_EQ(readFile(folder.path("drafts/1.eml/inside")), "old");
}

TEST(MailDrafts, LeaveNothingWhereTheyAreStopped) {
  const TestFolder folder;
  EXPECT_EQ(keep(folder.path("drafts"), "1.eml", "old"), std::nullopt);
  EXPECT_NE(writeDraft(folder.path("drafts"), "1.eml",
                       [](const MailSink& sink) {
                         sink("half");
                         return false;
                       }),
            std::nullopt);
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
  EXPECT_EQ(readFile(folder.path("drafts/1.eml")), "old");
}

TEST(MailDrafts, OfKilledWritersAreClearedAndThoseOfLivingOnesAreNot) {
  const TestFolder folder;
  folder.write("drafts/.dead.eml.unfinished", "half");
  folder.write("drafts/whole.eml", "Subject: Help\n\n");
  writeDraft(folder.path("drafts"), "living.eml", [&](const MailSink& sink) {
    removeUnfinishedDrafts(folder.path("drafts"));
    return sink("Subject: x\n\n");
  });
  EXPECT_THAT(folder.list("drafts"), ElementsAre("living.eml", "whole.eml"));
  removeUnfinishedDrafts(folder.path("no such folder"));
}

TEST(MailDrafts, AreListedTheLastOneFirst) {
  const TestFolder folder;
  EXPECT_THAT(listDrafts(folder.path("drafts")), IsEmpty());
  folder.write("drafts/1.eml", "Subject: Help\n\n" + std::string(1 << 20, 'x'));
  folder.write("drafts/2.eml", "Subject: =?UTF-8?B?IEhlbHAg?=\n\n");
  folder.write("drafts/3.eml", "");
  folder.write("drafts/.4.eml.unfinished", "Subject: x\n\n");
  folder.write("drafts/folder.eml/file", "Subject: x\n\n");
  ASSERT_EQ(::symlink("nowhere", folder.path("drafts/link.eml").c_str()), 0);
  const timespec times[][2] = {{{100, 0}, {100, 0}}, {{300, 0}, {300, 0}}, {{200, 0}, {200, 0}}};
  for (int i = 0; i < 3; ++i) {
    const std::string path = folder.path("drafts/" + std::to_string(i + 1) + ".eml");
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times[i], 0), 0);
  }
  std::vector<std::string> shown;
  for (const DraftSummary& draft : listDrafts(folder.path("drafts"))) {
    shown.push_back(draft.name + "|" + draft.subject + "|" + std::to_string(draft.written));
  }
  EXPECT_THAT(shown, ElementsAre("2.eml| Help |300", "3.eml||200", "1.eml|Help|100"));
}

TEST(MailDrafts, ComeBackAsTheyWere) {
  const TestFolder folder;
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  const MailMessage messages[] = {
      {.recipients = "Support Team <support@example.com>, b@example.com",
       .subject = " =?utf-8?B?SGk=?= Grüße ",
       .body = "a\rb\r\nc\nFrom x\n\u2028 " + std::string(2000, 'x'),
       .attachments = {std::make_shared<const MailAttachment>(
           MailAttachment{bytes, "Text/XML", "Receipt-Data.txt"})}},
      {.recipients = std::string("half@\0", 6),
       .subject = std::string("\0a\x01\nb\0c", 7),
       .body = "From x\n = \t\n"},
      {.recipients = "a\r\nBcc: eve@example.com", .subject = "", .body = "no end", .isHTML = true},
      {}};
  for (const MailMessage& message : messages) {
    ASSERT_EQ(writeDraft(folder.path("drafts"), "1.eml",
                         [&](const MailSink& sink) { return writeMailMessage(message, sink); }),
              std::nullopt);
    const Result<MailMessage> read = readDraft(folder.path("drafts/1.eml"));
    ASSERT_TRUE(read.value) << saidOf(read.failure);
    EXPECT_EQ(read.value->recipients, message.recipients);
    EXPECT_EQ(read.value->subject, message.subject);
    EXPECT_EQ(read.value->body, message.body);
    EXPECT_EQ(read.value->isHTML, message.isHTML);
    ASSERT_EQ(read.value->attachments.size(), message.attachments.size());
    for (std::size_t i = 0; i < message.attachments.size(); ++i) {
      EXPECT_EQ(read.value->attachments[i]->data, message.attachments[i]->data);
      EXPECT_EQ(read.value->attachments[i]->fileName, message.attachments[i]->fileName);
      EXPECT_EQ(read.value->attachments[i]->mimeType, message.attachments[i]->mimeType);
    }
  }
  EXPECT_EQ(saidOf(readDraft(folder.path("none")).failure),
            folder.path("none") + " can't be read: No such file or directory.");
}

}  // namespace
}  // namespace qv_commons::desktop
