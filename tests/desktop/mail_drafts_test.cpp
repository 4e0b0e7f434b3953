#include "qv_commons/platform/desktop/mail_drafts.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(MailDrafts, AreFilesOfTheUsersAlone) {
  const TestFolder folder;
  const mode_t before = ::umask(0);
  EXPECT_EQ(writeDraft(folder.path("data/drafts"), "1.eml", "Subject: Help\n"), "");
  ::umask(before);
  EXPECT_EQ(readFile(folder.path("data/drafts/1.eml")), "Subject: Help\n");
  struct stat status = {};
  ASSERT_EQ(::stat(folder.path("data/drafts/1.eml").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0600u);
  EXPECT_THAT(folder.list("data/drafts"), ElementsAre("1.eml"));
}

TEST(MailDrafts, ReplaceAnEarlierOne) {
  const TestFolder folder;
  EXPECT_EQ(writeDraft(folder.path("drafts"), "1.eml", "a long first text"), "");
  EXPECT_EQ(writeDraft(folder.path("drafts"), "1.eml", "short"), "");
  EXPECT_EQ(readFile(folder.path("drafts/1.eml")), "short");
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
}

TEST(MailDrafts, GetOverWhatAKilledWriterLeftBehind) {
  const TestFolder folder;
  folder.write("drafts/.1.eml.unfinished", "half of a much longer text");
  EXPECT_EQ(writeDraft(folder.path("drafts"), "1.eml", "whole"), "");
  EXPECT_EQ(readFile(folder.path("drafts/1.eml")), "whole");
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
}

TEST(MailDrafts, SayWhyTheirFolderCannotBeMade) {
  const TestFolder folder;
  folder.write("data", "a file in the folder's place");
  EXPECT_EQ(writeDraft(folder.path("data/drafts"), "1.eml", "x"), "Not a directory");
}

TEST(MailDrafts, LeaveTheOldOneWhereTheNewOneCannotTakeItsPlace) {
  const TestFolder folder;
  folder.write("drafts/1.eml/inside", "old");
  EXPECT_EQ(writeDraft(folder.path("drafts"), "1.eml", "new"), "Is a directory");
  EXPECT_THAT(folder.list("drafts"), ElementsAre("1.eml"));
  EXPECT_EQ(readFile(folder.path("drafts/1.eml/inside")), "old");
}

}  // namespace
}  // namespace qv_commons::desktop
