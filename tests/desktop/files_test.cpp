#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "qv_commons/platform/desktop/regular_file.h"

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

std::string errorFor(const FileLocation& location) {
  const FileContents contents = readRegularFile(location);
  EXPECT_EQ(contents.bytes, std::nullopt);
  return contents.errorDescription;
}

TEST(RegularFiles, SayInTheSystemsWordsWhatIsWrong) {
  const TestFolder folder;
  folder.write("file", "x");
  EXPECT_EQ(errorFor(folder.path()), "Is a directory");
  EXPECT_EQ(errorFor(folder.path("none")), "No such file or directory");
  EXPECT_EQ(errorFor(folder.path("file/below")), "Not a directory");
  EXPECT_EQ(errorFor(""), "No such file or directory");
}

// The mode of a file does not stop the superuser, who takes another user's part for this one.
TEST(RegularFiles, SayThatAFileIsNotTheUsersToRead) {
  const TestFolder folder;
  const std::string path = folder.write("file", "x");
  ASSERT_EQ(::chmod(path.c_str(), 0000), 0);
  const uid_t user = ::geteuid();
  constexpr uid_t kNobody = 65534;
  if (user == 0) {
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(::seteuid(kNobody), 0);
  }
  const std::string error = errorFor(path);
  ASSERT_EQ(::seteuid(user), 0);
  EXPECT_EQ(error, "Permission denied");
}

TEST(RegularFiles, DoNotWaitForTheWriterOfAPipe) {
  const TestFolder folder;
  ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(errorFor(folder.path("pipe")), "Operation not supported");
  EXPECT_EQ(errorFor("/dev/zero"), "Operation not supported");
}

TEST(RegularFiles, ReadFilesThatHoldMoreThanTheySay) {
  const FileContents contents = readRegularFile("/proc/self/status");
  ASSERT_TRUE(contents.bytes);
  EXPECT_EQ(contents.bytes->substr(0, 5), "Name:");
}

TEST(RegularFiles, ReadAHundredMegabytes) {
  const TestFolder folder;
  constexpr std::size_t kSize = 100'000'000;
  std::string bytes(kSize, 'x');
  bytes.back() = 'y';
  const FileContents contents = readRegularFile(folder.write("large", bytes));
  ASSERT_TRUE(contents.bytes);
  EXPECT_TRUE(*contents.bytes == bytes);
}

}  // namespace
}  // namespace qv_commons::desktop
