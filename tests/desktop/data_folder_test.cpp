#include "qv_commons/platform/desktop/data_folder.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "qv_commons/platform/desktop/private_folder.h"

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

class DataFolder : public testing::Test {
 protected:
  DataFolder() { QCoreApplication::setApplicationName("notes"); }
  ~DataFolder() override {
    QCoreApplication::setApplicationName("");
    QCoreApplication::setOrganizationName("");
    qputenv("HOME", home_);
    dataHome_.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", dataHome_);
  }

  const QByteArray home_ = qgetenv("HOME");
  const QByteArray dataHome_ = qgetenv("XDG_DATA_HOME");
};

TEST_F(DataFolder, IsTheAppsInTheUsersData) {
  qputenv("XDG_DATA_HOME", "/data");
  EXPECT_EQ(appDataFolder(), "/data/notes");
  QCoreApplication::setOrganizationName("maker");
  EXPECT_EQ(appDataFolder(), "/data/maker/notes");
}

TEST_F(DataFolder, IsInTheHomeFolderByDefaultAndWhereTheVariableIsRelative) {
  qputenv("HOME", "/home/ada");
  qunsetenv("XDG_DATA_HOME");
  EXPECT_EQ(appDataFolder(), "/home/ada/.local/share/notes");
  qputenv("XDG_DATA_HOME", "data");
  EXPECT_EQ(appDataFolder(), "/home/ada/.local/share/notes");
}

TEST_F(DataFolder, IsInTheUserDatabasesHomeWithoutHome) {
  qunsetenv("XDG_DATA_HOME");
  qunsetenv("HOME");
  const std::string expected = std::string(::getpwuid(::getuid())->pw_dir) + "/.local/share/notes";
  EXPECT_EQ(appDataFolder(), expected);
  qputenv("HOME", "relative");
  EXPECT_EQ(appDataFolder(), expected);
}

TEST(PrivateFolder, IsForTheUserAloneWithAllThatIsMissingAboveIt) {
  const TestFolder folder;
  const mode_t before = ::umask(0);
  EXPECT_EQ(makePrivateFolder(folder.path("a/b/c")), std::nullopt);
  EXPECT_EQ(makePrivateFolder(folder.path("a/b/c")), std::nullopt);
  ::umask(before);
  for (const char* name : {"a", "a/b", "a/b/c"}) {
    struct stat status = {};
    ASSERT_EQ(::stat(folder.path(name).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U) << name;
  }
}

TEST(PrivateFolder, SaysWhyItCannotBeMade) {
  const TestFolder folder;
  folder.write("a", "a file in the folder's place");
  EXPECT_EQ(saidOf(makePrivateFolder(folder.path("a/b"))),
            "The folder " + folder.path("a") + " can't be made: Not a directory.");
}

}  // namespace
}  // namespace qv_commons::desktop
