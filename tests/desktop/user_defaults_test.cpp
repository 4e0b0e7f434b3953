#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

#include "tests/desktop/watched_sqlite.h"
#include "tests/support_code/sanitized.h"

namespace qv_commons::desktop {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kShown = "QV_AgeGate_Shown";
constexpr const char* kBlocked = "QV_AgeGate_Blocked";

class UserDefaultsTest : public testing::Test {
 protected:
  SqliteUserDefaults::ErrorHandler recorder() {
    return [this](const std::string& error) { errors_.push_back(error); };
  }
  std::unique_ptr<SqliteUserDefaults> start() {
    return std::make_unique<SqliteUserDefaults>(folder_, "com.example.notes", recorder());
  }
  void refuse() {
    const auto defaults = start();
    defaults->setBool(true, kShown);
    defaults->setBool(true, kBlocked);
  }
  fs::path file() const { return fs::path(folder_) / "com.example.notes.defaults"; }
  fs::path copy() const { return file().string() + ".copy"; }
  std::string about(const std::string& what) const {
    return "The settings in " + file().string() + ": " + what + ".";
  }
  std::string read(const fs::path& path) const {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void write(const std::string& bytes) const {
    fs::create_directories(folder_);
    fs::remove(file());
    std::ofstream(file(), std::ios::binary) << bytes;
  }

  QTemporaryDir temporary_;
  std::string folder_ = temporary_.path().toStdString() + "/data/notes";
  std::vector<std::string> errors_;
};

TEST_F(UserDefaultsTest, AreFalseAndMakeNoFileUntilSomethingIsWritten) {
  EXPECT_FALSE(start()->boolForKey(kShown));
  EXPECT_FALSE(fs::exists(folder_));
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(UserDefaultsTest, AreVisibleAtOnceAndOnTheDiskAfterACommit) {
  const auto defaults = start();
  defaults->setBool(true, kShown);
  EXPECT_TRUE(defaults->boolForKey(kShown));
  EXPECT_FALSE(start()->boolForKey(kShown));
  defaults->commit();
  EXPECT_TRUE(start()->boolForKey(kShown));
}

TEST_F(UserDefaultsTest, CommitWhatWasSetInOneTransactionAndOneOfTheCopy) {
  const auto defaults = start();
  defaults->setBool(true, kShown);
  defaults->setBool(true, kBlocked);
  const WatchedSqlite watched;
  defaults->commit();
  const std::string insert = "INSERT OR REPLACE INTO bools VALUES (?1, ?2)";
  const auto table = HasSubstr("CREATE TABLE IF NOT EXISTS bools");
  EXPECT_THAT(watched.statements(),
              ElementsAre("PRAGMA synchronous = EXTRA", "BEGIN IMMEDIATE", table, insert, insert,
                          "COMMIT", "PRAGMA synchronous = EXTRA", "BEGIN IMMEDIATE", table, insert,
                          insert, "COMMIT"));
}

// A journal whose unlink a power cut undoes would be rolled back, and the refusal with it.
TEST_F(UserDefaultsTest, SyncTheFolderAfterTheJournalIsGone) {
  const WatchedSqlite watched;
  refuse();
  EXPECT_GT(watched.traffic().writes, 0);
  EXPECT_EQ(watched.traffic().unsyncedDeletes, 0);
}

TEST_F(UserDefaultsTest, KeepFalseAndOverwrite) {
  const auto defaults = start();
  defaults->setBool(true, kShown);
  defaults->setBool(false, kShown);
  EXPECT_FALSE(defaults->boolForKey(kShown));
  defaults->commit();
  EXPECT_FALSE(start()->boolForKey(kShown));
}

TEST_F(UserDefaultsTest, AreForTheUserAlone) {
  const mode_t before = umask(0);
  refuse();
  umask(before);
  struct stat file_status {};
  struct stat folder_status {};
  ASSERT_EQ(stat(file().c_str(), &file_status), 0);
  ASSERT_EQ(stat(folder_.c_str(), &folder_status), 0);
  struct stat copy_status {};
  ASSERT_EQ(stat(copy().c_str(), &copy_status), 0);
  EXPECT_EQ(file_status.st_mode & 0777, 0600U);
  EXPECT_EQ(copy_status.st_mode & 0777, 0600U);
  EXPECT_EQ(folder_status.st_mode & 0777, 0700U);
}

TEST_F(UserDefaultsTest, NameTheFileAfterTheHostWhateverItIsCalled) {
  for (const std::string identifier : {"../evil", "", "a/b"}) {
    SqliteUserDefaults defaults(folder_, identifier, recorder());
    defaults.setBool(true, kShown);
  }
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_))
    names.push_back(entry.path().filename());
  EXPECT_THAT(names, testing::UnorderedElementsAre(".._evil.defaults", ".._evil.defaults.copy",
                                                   "unnamed.defaults", "unnamed.defaults.copy",
                                                   "a_b.defaults", "a_b.defaults.copy"));
}

TEST_F(UserDefaultsTest, AStartThatOnlyReadsOpensOneFileRunsTwoReadsAndWritesNothing) {
  refuse();
  const WatchedSqlite watched;
  const auto defaults = start();
  EXPECT_TRUE(defaults->boolForKey(kShown));
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
  EXPECT_THAT(watched.statements(),
              ElementsAre("SELECT key, value FROM bools", "SELECT key, value FROM bools"));
  EXPECT_EQ(watched.traffic().opens, 1);
  EXPECT_EQ(watched.traffic().writes, 0);
}

TEST_F(UserDefaultsTest, SetADamagedFileAsideAndNeverOverwriteAnEarlierOne) {
  write("not a database, but long enough to be taken for the header of one, and then some.......");
  EXPECT_FALSE(start()->boolForKey(kShown));
  write("damaged again, and again long enough to be taken for the header of one, and then some...");
  EXPECT_FALSE(start()->boolForKey(kBlocked));
  EXPECT_THAT(read(file().string() + ".damaged-1"), HasSubstr("not a database"));
  EXPECT_THAT(read(file().string() + ".damaged-2"), HasSubstr("damaged again"));
  EXPECT_FALSE(fs::exists(file()));
  EXPECT_THAT(
      errors_,
      ElementsAre(
          about("it was damaged and has been set aside as " + file().string() + ".damaged-1"),
          about("it was damaged and has been set aside as " + file().string() + ".damaged-2")));
}

TEST_F(UserDefaultsTest, GoOnWithANewFileAfterDamageFoundWhileWriting) {
  write("not a database, but long enough to be taken for the header of one, and then some.......");
  refuse();
  EXPECT_TRUE(start()->boolForKey(kShown));
  EXPECT_TRUE(start()->boolForKey(kBlocked));
  EXPECT_TRUE(fs::exists(file().string() + ".damaged-1"));
}

TEST_F(UserDefaultsTest, KeepARefusalWhateverIsCutOff) {
  refuse();
  const std::string whole = read(file());
  ASSERT_GT(whole.size(), 4096U);
  for (std::size_t size = 0; size < whole.size(); size += 97) {
    write(whole.substr(0, size));
    const auto defaults = start();
    EXPECT_TRUE(defaults->boolForKey(kShown)) << size;
    EXPECT_TRUE(defaults->boolForKey(kBlocked)) << size;
  }
}

TEST_F(UserDefaultsTest, ReportAFolderThatCannotBeWrittenAndGoOn) {
  std::ofstream(temporary_.path().toStdString() + "/data") << "a file in the folder's place";
  const auto defaults = start();
  defaults->setBool(true, kShown);
  defaults->commit();
  EXPECT_TRUE(defaults->boolForKey(kShown));
  EXPECT_THAT(
      errors_,
      ElementsAre("The settings are in the memory alone until they can be written. "
                  "The folder " +
                  temporary_.path().toStdString() + "/data can't be made: Not a directory."));
}

TEST_F(UserDefaultsTest, KeepWhatTheDiskHadNoRoomForAndWriteItWithTheNext) {
  std::signal(SIGXFSZ, SIG_IGN);
  const auto defaults = start();
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit none{0, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &none);
  defaults->setBool(true, kShown);
  defaults->commit();
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_FALSE(errors_.empty());
  EXPECT_TRUE(defaults->boolForKey(kShown));

  defaults->setBool(true, kBlocked);
  defaults->commit();
  EXPECT_TRUE(start()->boolForKey(kShown));
  EXPECT_TRUE(start()->boolForKey(kBlocked));
}

// Holds the file as another process does that is writing.
class Holder {
 public:
  explicit Holder(const fs::path& path, const char* how = "BEGIN EXCLUSIVE") {
    EXPECT_EQ(sqlite3_open(path.c_str(), &database_), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database_, how, nullptr, nullptr, nullptr), SQLITE_OK);
  }
  ~Holder() { sqlite3_close(database_); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  sqlite3* database_ = nullptr;
};

TEST_F(UserDefaultsTest, ReadTheCopyWhileAnotherProcessWrites) {
  refuse();
  const Holder holder(file());
  EXPECT_TRUE(start()->boolForKey(kShown));
  EXPECT_TRUE(start()->boolForKey(kBlocked));
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(UserDefaultsTest, ReadTheCopyWhereTheFileCannotBeOpened) {
  refuse();
  fs::remove(file());
  fs::create_directory(file());
  const auto defaults = start();
  EXPECT_TRUE(defaults->boolForKey(kShown));
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
  EXPECT_THAT(errors_, ElementsAre(about("Is a directory")));
}

TEST_F(UserDefaultsTest, ReadTheCopyWhereTheFileIsLost) {
  refuse();
  fs::remove(file());
  EXPECT_TRUE(start()->boolForKey(kBlocked));
  const auto defaults = start();
  defaults->setBool(true, "another");
  defaults->commit();
  fs::remove(copy());
  EXPECT_TRUE(start()->boolForKey(kBlocked));
}

TEST_F(UserDefaultsTest, TellOnceThatNeitherCanBeReadAndReadThemLater) {
  refuse();
  std::optional<Holder> ofFile(file());
  std::optional<Holder> ofCopy(copy());
  const auto defaults = start();
  EXPECT_FALSE(defaults->boolForKey(kBlocked));
  EXPECT_FALSE(defaults->boolForKey(kBlocked));
  EXPECT_THAT(errors_, ElementsAre(about("another process holds the file")));
  ofFile.reset();
  ofCopy.reset();
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
}

TEST_F(UserDefaultsTest, TryAgainToReadWhatIsFreeAMomentLater) {
  refuse();
  fs::remove(copy());
  std::optional<Holder> holder(file());
  WatchedSqlite watched;
  int attempts = 0;
  watched.setOnBusy([&] {
    ++attempts;
    holder.reset();
  });
  EXPECT_TRUE(start()->boolForKey(kBlocked));
  EXPECT_EQ(attempts, 1);  // in vain
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(UserDefaultsTest, ForgetNothingThatWasOnceReadOrWritten) {
  refuse();
  const auto reader = start();
  EXPECT_TRUE(reader->boolForKey(kBlocked));
  const auto writer = start();
  writer->setBool(true, "written");
  writer->commit();
  fs::remove_all(folder_);
  fs::create_directories(file());
  fs::create_directories(copy());
  EXPECT_TRUE(reader->boolForKey(kShown));
  EXPECT_TRUE(reader->boolForKey(kBlocked));
  EXPECT_TRUE(writer->boolForKey("written"));
}

TEST_F(UserDefaultsTest, ReadWithoutADescriptorWhatWasReadBefore) {
  if (test::kIsSanitized) GTEST_SKIP() << "a sanitizer needs descriptors of its own";
  refuse();
  const auto defaults = start();
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
  rlimit before{};
  getrlimit(RLIMIT_NOFILE, &before);
  const rlimit none{0, before.rlim_max};
  setrlimit(RLIMIT_NOFILE, &none);
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
  EXPECT_FALSE(start()->boolForKey(kBlocked));
  setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_THAT(errors_, ElementsAre(about("Too many open files")));
}

TEST_F(UserDefaultsTest, TellAFailingWriteOnceAndTryItAgainByThemselves) {
  refuse();
  std::optional<Holder> holder(file());
  const auto defaults = start();
  defaults->setBool(true, "later");
  for (int i = 0; i < 3; ++i) defaults->commit();
  EXPECT_THAT(errors_, ElementsAre(about("another process holds the file")));
  EXPECT_TRUE(defaults->boolForKey("later"));
  holder.reset();
  EXPECT_TRUE(QTest::qWaitFor([&] { return start()->boolForKey("later"); }, 10000));
  EXPECT_EQ(errors_.size(), 1U);
}

// The pauses of a commit, in reading and writing the file and the copy: together a quarter of a
// second.
constexpr int kMostPauses = 250 / 5;

TEST_F(UserDefaultsTest, WaitNoLongerThanAQuarterOfASecondForOtherWriters) {
  refuse();
  const auto defaults = start();
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
  const Holder ofFile(file());
  const Holder ofCopy(copy());
  const WatchedSqlite watched;
  defaults->setBool(true, "later");
  defaults->commit();
  EXPECT_GT(watched.traffic().pauses, 0);
  EXPECT_LE(watched.traffic().pauses, kMostPauses);
  EXPECT_EQ(errors_.size(), 1U);
}

// First another process writes, then one reads: a transaction waits for both, in different steps.
TEST_F(UserDefaultsTest, WaitNoLongerForWritersAndReadersTogether) {
  refuse();
  const auto defaults = start();
  EXPECT_TRUE(defaults->boolForKey(kBlocked));
  std::optional<Holder> writer(file());
  std::optional<Holder> reader;
  constexpr int kPausesOfTheWriter = 3;
  WatchedSqlite watched;
  watched.setOnPause([&](int number) {
    if (number != kPausesOfTheWriter) return;
    writer.reset();
    reader.emplace(file(), "BEGIN; SELECT * FROM bools");
  });
  defaults->setBool(true, "later");
  defaults->commit();
  EXPECT_GT(watched.traffic().pauses, kPausesOfTheWriter);
  EXPECT_LE(watched.traffic().pauses, kMostPauses);
  EXPECT_EQ(errors_.size(), 1U);
}

TEST_F(UserDefaultsTest, WaitNoLongerWhereNothingWasReadBefore) {
  refuse();
  const Holder ofFile(file());
  const Holder ofCopy(copy());
  const auto defaults = start();
  const WatchedSqlite watched;
  defaults->setBool(true, "later");
  defaults->commit();
  EXPECT_EQ(watched.traffic().pauses, 0);  // the attempts to read have taken the time
  EXPECT_THAT(errors_, testing::Not(IsEmpty()));
}

// Each would read as empty, or as a value that nobody wrote, if SQLite alone were asked.
TEST_F(UserDefaultsTest, SetAsideWhatIsNotOurs) {
  refuse();
  const std::string whole = read(file());
  ASSERT_EQ(whole.size(), 8192U);
  int aside = 0;
  const auto expectSetAside = [&] {
    errors_.clear();
    EXPECT_TRUE(start()->boolForKey(kBlocked));
    EXPECT_THAT(errors_,
                ElementsAre(about("it was damaged and has been set aside as " + file().string() +
                                  ".damaged-" + std::to_string(++aside))));
  };
  for (const std::size_t size : {1u, 4097u, 5000u, 8191u}) {
    write(whole.substr(0, size));
    expectSetAside();
  }
  for (const char* table : {"CREATE TABLE bools (name TEXT)", "CREATE TABLE other (key TEXT)",
                            "CREATE TABLE bools (key, value); INSERT INTO bools VALUES (1, 'x')"}) {
    sqlite3* foreign = nullptr;
    ASSERT_EQ(sqlite3_open(file().c_str(), &foreign), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(foreign, table, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(foreign);
    expectSetAside();
  }
}

TEST_F(UserDefaultsTest, WriteOverWhatIsNotOursIntoANewFile) {
  fs::create_directories(folder_);
  sqlite3* foreign = nullptr;
  ASSERT_EQ(sqlite3_open(file().c_str(), &foreign), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(foreign, "CREATE TABLE bools (name)", nullptr, nullptr, nullptr),
            SQLITE_OK);
  sqlite3_close(foreign);
  refuse();
  EXPECT_TRUE(start()->boolForKey(kBlocked));
  EXPECT_TRUE(fs::exists(file().string() + ".damaged-1"));
  EXPECT_EQ(errors_.size(), 1U);
}

// What the child processes below run; nothing of the parent's may be used.
template <typename Body>
pid_t inChild(Body body) {
  const pid_t child = fork();
  if (child != 0) return child;
  body();
  _exit(0);
}

TEST_F(UserDefaultsTest, LoseNothingOfFourProcessesAtOnce) {
  constexpr int kProcesses = 4;
  constexpr int kKeys = 50;
  std::vector<pid_t> children;
  for (int process = 0; process < kProcesses; ++process) {
    children.push_back(inChild([&] {
      SqliteUserDefaults defaults(folder_, "com.example.notes", nullptr);
      for (int key = 0; key < kKeys; ++key) {
        defaults.setBool(true, std::to_string(process) + ":" + std::to_string(key));
        defaults.commit();
      }
    }));
  }
  for (const pid_t child : children) waitpid(child, nullptr, 0);
  const auto defaults = start();
  int kept = 0;
  for (int process = 0; process < kProcesses; ++process) {
    for (int key = 0; key < kKeys; ++key) {
      kept += defaults->boolForKey(std::to_string(process) + ":" + std::to_string(key)) ? 1 : 0;
    }
  }
  EXPECT_EQ(kept, kProcesses * kKeys);
}

TEST_F(UserDefaultsTest, LoseNothingOfFourProcessesThatFindTheFileDamagedAtOnce) {
  write("not a database, but long enough to be taken for the header of one, and then some.......");
  std::vector<pid_t> children;
  for (int process = 0; process < 4; ++process) {
    children.push_back(inChild([&] {
      SqliteUserDefaults defaults(folder_, "com.example.notes", nullptr);
      defaults.boolForKey(kShown);
      defaults.setBool(true, std::to_string(process));
    }));
  }
  for (const pid_t child : children) waitpid(child, nullptr, 0);
  const auto defaults = start();
  for (const char* key : {"0", "1", "2", "3"}) EXPECT_TRUE(defaults->boolForKey(key)) << key;
  EXPECT_TRUE(fs::exists(file().string() + ".damaged-1"));
  EXPECT_FALSE(fs::exists(file().string() + ".damaged-2"));
}

// Killed before each change of a file that a refusal makes, one after the other.
TEST_F(UserDefaultsTest, AreBothThereOrNeitherWhereverTheProcessIsKilled) {
  bool wasKilled = true;
  int change = 0;
  for (; wasKilled; ++change) {
    fs::remove_all(folder_);
    const pid_t child = inChild([&] {
      WatchedSqlite watched;
      watched.killAtChange(change);
      SqliteUserDefaults defaults(folder_, "com.example.notes", nullptr);
      defaults.setBool(true, kShown);
      defaults.setBool(true, kBlocked);
      defaults.commit();
    });
    int status = 0;
    waitpid(child, &status, 0);
    wasKilled = WIFSIGNALED(status);
    const auto defaults = start();
    EXPECT_EQ(defaults->boolForKey(kShown), defaults->boolForKey(kBlocked)) << change;
    EXPECT_TRUE(wasKilled || defaults->boolForKey(kBlocked)) << change;
  }
  EXPECT_GT(change, 14);
  EXPECT_THAT(errors_, IsEmpty());
}

}  // namespace
}  // namespace qv_commons::desktop
