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

constexpr const char* kMakeTable =
    "CREATE TABLE IF NOT EXISTS bools (key TEXT PRIMARY KEY, value INTEGER NOT NULL) WITHOUT ROWID";
constexpr const char* kRead = "SELECT key, value FROM bools";
constexpr const char* kFill = "INSERT OR IGNORE INTO bools VALUES (?1, ?2)";
constexpr const char* kWrite = "INSERT OR REPLACE INTO bools VALUES (?1, ?2)";

// FULL leaves the unlink of the journal to the system: undone by a power cut, the journal would
// take back what a user has been told.
constexpr const char* kSynchronous = "PRAGMA synchronous = EXTRA";

// SQLite's, of every file that it has made for this library. It takes what a page lacks for zeros.
constexpr off_t kPageSize = 4096;

struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

Statement prepare(sqlite3* database, const char* text, int& code) {
  sqlite3_stmt* statement = nullptr;
  code = sqlite3_prepare_v2(database, text, -1, &statement, nullptr);
  return Statement(statement);
}

// What SQLite calls while another process holds the file, at each of a transaction's steps. Its own
// way, the busy timeout, begins anew with each.
int waitALittle(void* end, int) {
  constexpr int kPauseMilliseconds = 5;
  if (std::chrono::steady_clock::now() >= *static_cast<SqliteFile::TimePoint*>(end)) return 0;
  sqlite3_sleep(kPauseMilliseconds);
  return 1;
}

// -1 where there is no file, or none that can be looked at.
off_t sizeOf(const std::string& path) {
  struct stat status = {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_size : -1;
}

}  // namespace

void SqliteFile::Close::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

SqliteFile::SqliteFile(std::string path) : path_(std::move(path)) {}

SqliteFile::~SqliteFile() = default;

SqliteFile::Contents SqliteFile::read() {
  Values values;
  Outcome outcome = tryRead(values);
  if (outcome == Outcome::damaged) outcome = setAsideIfDamaged(values);
  switch (outcome) {
    case Outcome::done:
      return {.state = State::whole, .values = std::move(values)};
    case Outcome::absent:
      return {.state = State::absent};
    case Outcome::busy:
      return {.state = State::busy, .failure = failure_};
    case Outcome::damaged:  // no longer: it has been set aside
      return {.state = State::absent, .failure = failure_};
    default:
      return {.state = State::failed, .failure = failure_};
  }
}

Complaint SqliteFile::write(const Values& changes, const Values& known, TimePoint end) {
  const Outcome outcome = tryWrite(changes, known, end);
  return outcome == Outcome::done ? std::nullopt : Complaint(failure_);
}

SqliteFile::Outcome SqliteFile::open(Mode mode) {
  if (mode == Mode::openOrMake) {
    database_.reset();  // the file may have been moved or removed since it was opened
    // SQLite would make it readable by everybody.
    const FileDescriptor made(
        ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!made.isOpen()) return fail(describeError(errno));
  }
  if (database_) return Outcome::done;
  // Never for reading alone: a writer that was killed leaves its journal for us to roll back.
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(path_.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
  database_.reset(opened);
  if (code == SQLITE_OK) return Outcome::done;
  const int error = sqlite3_system_errno(opened);
  const Outcome outcome = error == ENOENT
                              ? Outcome::absent
                              : fail(error == 0 ? sqlite3_errmsg(opened) : describeError(error));
  database_.reset();
  return outcome;
}

SqliteFile::Outcome SqliteFile::tryRead(Values& values) {
  values.clear();
  Outcome outcome = open(Mode::open);
  if (outcome == Outcome::done) outcome = readRows(values);
  if (outcome != Outcome::done) database_.reset();
  return outcome;
}

SqliteFile::Outcome SqliteFile::readRows(Values& values) {
  int code = SQLITE_OK;
  const Statement statement = prepare(database_.get(), kRead, code);
  while (code == SQLITE_OK || code == SQLITE_ROW) {
    code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW) break;
    if (sqlite3_column_type(statement.get(), 0) != SQLITE_TEXT ||
        sqlite3_column_type(statement.get(), 1) != SQLITE_INTEGER) {
      return Outcome::damaged;
    }
    const unsigned char* key = sqlite3_column_text(statement.get(), 0);
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), 0));
    values[std::string(reinterpret_cast<const char*>(key), length)] =
        sqlite3_column_int(statement.get(), 1) != 0;
  }
  const off_t size = sizeOf(path_);
  if (size == 0) return Outcome::absent;  // its maker has not come further yet
  if (code == SQLITE_DONE && size % kPageSize != 0 && size != -1) return Outcome::damaged;
  return outcomeOf(code);
}

SqliteFile::Outcome SqliteFile::tryWrite(const Values& changes, const Values& known,
                                         TimePoint end) {
  Outcome outcome = open(Mode::openOrMake);
  if (outcome != Outcome::done) return outcome;
  sqlite3_busy_handler(database_.get(), waitALittle, &end);
  outcome = run(kSynchronous);
  if (outcome == Outcome::done) outcome = run("BEGIN IMMEDIATE");
  if (outcome == Outcome::done) outcome = run(kMakeTable);
  if (outcome == Outcome::done) outcome = insert(kFill, known);
  if (outcome == Outcome::done) outcome = insert(kWrite, changes);
  if (outcome == Outcome::done) outcome = run("COMMIT");
  if (outcome != Outcome::done) {
    sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
  sqlite3_busy_handler(database_.get(), nullptr, nullptr);
  return outcome;
}

SqliteFile::Outcome SqliteFile::insert(const char* text, const Values& values) {
  int code = SQLITE_OK;
  const Statement statement = prepare(database_.get(), text, code);
  for (const auto& [key, value] : values) {
    if (code != SQLITE_OK) break;
    sqlite3_bind_text(statement.get(), 1, key.data(), static_cast<int>(key.size()), SQLITE_STATIC);
    sqlite3_bind_int(statement.get(), 2, value ? 1 : 0);
    sqlite3_step(statement.get());
    code = sqlite3_reset(statement.get());  // the code of the step
  }
  return outcomeOf(code);
}

SqliteFile::Outcome SqliteFile::run(const char* statement) {
  return outcomeOf(sqlite3_exec(database_.get(), statement, nullptr, nullptr, nullptr));
}

SqliteFile::Outcome SqliteFile::outcomeOf(int code) {
  switch (code) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
      return Outcome::done;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_ERROR:  // no table or column of our name
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      fail("it is damaged");
      return Outcome::damaged;
    case SQLITE_BUSY:
      fail("another process holds the file");
      return Outcome::busy;
    default:
      const int error = sqlite3_system_errno(database_.get());
      return fail(error == 0 ? sqlite3_errmsg(database_.get()) : describeError(error));
  }
}

SqliteFile::Outcome SqliteFile::fail(const std::string& why) {
  failure_ = "The settings in " + path_ + ": " + why + ".";
  return Outcome::failed;
}

// Another process may have set the damaged file aside already and written a good one: only whoever
// holds the folder's lock moves the file, and only after having looked again.
SqliteFile::Outcome SqliteFile::setAsideIfDamaged(Values& values) {
  database_.reset();
  const std::string folder = std::filesystem::path(path_).parent_path();
  const FileDescriptor lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock.isOpen()) return fail(describeError(errno));
  if (flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
    fail("it is damaged and another process is setting it aside");
    return Outcome::busy;
  }
  const Outcome outcome = tryRead(values);
  return outcome == Outcome::damaged ? moveAside() : outcome;
}

// The journal goes along: it belongs to the damaged file and would be rolled back into a new one.
SqliteFile::Outcome SqliteFile::moveAside() {
  for (int number = 1;; ++number) {
    const std::string aside = path_ + ".damaged-" + std::to_string(number);
    if (renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, aside.c_str(), RENAME_NOREPLACE) == 0) {
      rename((path_ + "-journal").c_str(), (aside + "-journal").c_str());
      fail("it was damaged and has been set aside as " + aside);
      return Outcome::damaged;
    }
    if (errno != EEXIST) return fail(describeError(errno));
  }
}

}  // namespace qv_commons::desktop
