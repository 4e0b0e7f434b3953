#include "qv_commons/platform/desktop/sqlite_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "qv_commons/platform/desktop/file_descriptor.h"

namespace qv_commons::desktop {

namespace {

// Other processes hold the file for about a millisecond; a disk that sleeps may take seconds.
constexpr int kBusyTimeoutMilliseconds = 5000;

constexpr const char* kMakeTable =
    "CREATE TABLE IF NOT EXISTS bools (key TEXT PRIMARY KEY, value INTEGER NOT NULL) WITHOUT ROWID";
constexpr const char* kRead = "SELECT key, value FROM bools";
constexpr const char* kWrite = "INSERT OR REPLACE INTO bools VALUES (?1, ?2)";

struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

Statement prepare(sqlite3* database, const char* text, int& code) {
  sqlite3_stmt* statement = nullptr;
  code = sqlite3_prepare_v2(database, text, -1, &statement, nullptr);
  return Statement(statement);
}

}  // namespace

void SqliteFile::Close::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

SqliteFile::SqliteFile(std::string path, ErrorHandler report)
    : path_(std::move(path)), report_(std::move(report)) {}

SqliteFile::~SqliteFile() = default;

std::optional<SqliteFile::Values> SqliteFile::read() {
  Values values;
  Outcome outcome = tryRead(values);
  if (outcome == Outcome::damaged) {
    setAsideIfDamaged();
    outcome = tryRead(values);
  }
  if (outcome != Outcome::done && outcome != Outcome::absent) return std::nullopt;
  return values;
}

bool SqliteFile::write(const Values& values) {
  Outcome outcome = tryWrite(values);
  if (outcome == Outcome::damaged) {
    setAsideIfDamaged();
    outcome = tryWrite(values);
  }
  return outcome == Outcome::done;
}

SqliteFile::Outcome SqliteFile::open(Mode mode) {
  if (database_) return Outcome::done;
  if (mode == Mode::openOrMake) {
    // SQLite would make it readable by everybody.
    const FileDescriptor made(
        ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!made.isOpen()) {
      report(describeError(errno));
      return Outcome::failed;
    }
  }
  // Never for reading alone: a writer that was killed leaves its journal for us to roll back.
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(path_.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
  database_.reset(opened);
  if (code == SQLITE_OK) {
    sqlite3_busy_timeout(opened, kBusyTimeoutMilliseconds);
    return Outcome::done;
  }
  const bool isAbsent =
      code == SQLITE_CANTOPEN && access(path_.c_str(), F_OK) != 0 && errno == ENOENT;
  if (!isAbsent) report(sqlite3_errmsg(opened));
  database_.reset();
  return isAbsent ? Outcome::absent : Outcome::failed;
}

SqliteFile::Outcome SqliteFile::tryRead(Values& values) {
  values.clear();
  if (const Outcome outcome = open(Mode::open); outcome != Outcome::done) return outcome;
  int code = SQLITE_OK;
  const Statement statement = prepare(database_.get(), kRead, code);
  // A file that was just made has no table yet.
  if (code == SQLITE_ERROR) return Outcome::absent;
  while (code == SQLITE_OK || code == SQLITE_ROW) {
    code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW) break;
    const unsigned char* key = sqlite3_column_text(statement.get(), 0);
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), 0));
    values[std::string(reinterpret_cast<const char*>(key), length)] =
        sqlite3_column_int(statement.get(), 1) != 0;
  }
  return outcomeOf(code);
}

SqliteFile::Outcome SqliteFile::tryWrite(const Values& values) {
  database_.reset();  // the file may have been moved or removed since it was opened
  Outcome outcome = open(Mode::openOrMake);
  if (outcome == Outcome::done) outcome = run("PRAGMA synchronous = FULL");
  if (outcome == Outcome::done) outcome = run("BEGIN IMMEDIATE");
  if (outcome != Outcome::done) return outcome;
  outcome = run(kMakeTable);
  for (const auto& [key, value] : values) {
    if (outcome == Outcome::done) outcome = insert(key, value);
  }
  if (outcome == Outcome::done) outcome = run("COMMIT");
  if (outcome != Outcome::done)
    sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  return outcome;
}

SqliteFile::Outcome SqliteFile::insert(std::string_view key, bool value) {
  int code = SQLITE_OK;
  const Statement statement = prepare(database_.get(), kWrite, code);
  if (code == SQLITE_OK) {
    code = sqlite3_bind_text(statement.get(), 1, key.data(), static_cast<int>(key.size()),
                             SQLITE_STATIC);
  }
  if (code == SQLITE_OK) code = sqlite3_bind_int(statement.get(), 2, value ? 1 : 0);
  if (code == SQLITE_OK) code = sqlite3_step(statement.get());
  return outcomeOf(code);
}

SqliteFile::Outcome SqliteFile::run(const char* statement) {
  return outcomeOf(sqlite3_exec(database_.get(), statement, nullptr, nullptr, nullptr));
}

SqliteFile::Outcome SqliteFile::outcomeOf(int code) {
  if (code == SQLITE_OK || code == SQLITE_ROW || code == SQLITE_DONE) return Outcome::done;
  if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB) return Outcome::damaged;
  report(sqlite3_errmsg(database_.get()));
  return Outcome::failed;
}

// Another process may have set the damaged file aside already and written a good one: only whoever
// holds the folder's lock moves the file, and only after having looked again.
void SqliteFile::setAsideIfDamaged() {
  database_.reset();
  const std::string folder = std::filesystem::path(path_).parent_path();
  const FileDescriptor lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock.isOpen() || flock(lock.number(), LOCK_EX) != 0) {
    report(describeError(errno));
    return;
  }
  Values values;
  const bool isDamaged = tryRead(values) == Outcome::damaged;
  database_.reset();
  if (isDamaged && moveAside()) report("it was damaged and has been set aside");
}

// The journal goes along: it belongs to the damaged file and would be rolled back into a new one.
bool SqliteFile::moveAside() {
  for (int number = 1;; ++number) {
    const std::string aside = path_ + ".damaged-" + std::to_string(number);
    if (renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, aside.c_str(), RENAME_NOREPLACE) == 0) {
      rename((path_ + "-journal").c_str(), (aside + "-journal").c_str());
      return true;
    }
    if (errno != EEXIST) {
      report(describeError(errno));
      return false;
    }
  }
}

void SqliteFile::report(const std::string& what) const {
  if (report_) report_("The settings in " + path_ + ": " + what);
}

}  // namespace qv_commons::desktop
