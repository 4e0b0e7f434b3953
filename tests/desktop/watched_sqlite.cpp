#include "tests/desktop/watched_sqlite.h"

#include <csignal>
#include <cstring>
#include <sqlite3.h>
#include <utility>

namespace qv_commons::desktop {

namespace {

// SQLite's interface for this is made of plain functions.
FileTraffic seen;
std::vector<std::string> run;
int fatalChange = -1;
std::function<void(int)> duringPause;
std::function<void()> whenBusy;
sqlite3_vfs* real = nullptr;
sqlite3_vfs watching;
sqlite3_io_methods methods;

struct WatchedFile {
  sqlite3_file base;
  sqlite3_file* actual() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* actualOf(sqlite3_file* file) {
  return reinterpret_cast<WatchedFile*>(file)->actual();
}

void change() {
  if (seen.writes == fatalChange) std::raise(SIGKILL);
  ++seen.writes;
}

#define QV_FORWARD(name, parameters, arguments) \
  int name parameters {                         \
    sqlite3_file* actual = actualOf(file);      \
    return actual->pMethods->x##name arguments; \
  }
QV_FORWARD(Close, (sqlite3_file * file), (actual))
QV_FORWARD(FileSize, (sqlite3_file * file, sqlite3_int64* size), (actual, size))
QV_FORWARD(Unlock, (sqlite3_file * file, int level), (actual, level))
QV_FORWARD(CheckReservedLock, (sqlite3_file * file, int* result), (actual, result))
QV_FORWARD(FileControl, (sqlite3_file * file, int operation, void* data), (actual, operation, data))
QV_FORWARD(SectorSize, (sqlite3_file * file), (actual))
QV_FORWARD(DeviceCharacteristics, (sqlite3_file * file), (actual))
#undef QV_FORWARD

int Lock(sqlite3_file* file, int level) {
  const int code = actualOf(file)->pMethods->xLock(actualOf(file), level);
  if (code == SQLITE_BUSY && whenBusy) whenBusy();
  return code;
}

int Read(sqlite3_file* file, void* data, int size, sqlite3_int64 offset) {
  ++seen.reads;
  return actualOf(file)->pMethods->xRead(actualOf(file), data, size, offset);
}

int Write(sqlite3_file* file, const void* data, int size, sqlite3_int64 offset) {
  change();
  return actualOf(file)->pMethods->xWrite(actualOf(file), data, size, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
  change();
  return actualOf(file)->pMethods->xTruncate(actualOf(file), size);
}

int Sync(sqlite3_file* file, int flags) {
  change();
  return actualOf(file)->pMethods->xSync(actualOf(file), flags);
}

int Delete(sqlite3_vfs*, const char* name, int sync) {
  change();
  if (sync == 0) ++seen.unsyncedDeletes;
  return real->xDelete(real, name, sync);
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  ++seen.opens;
  const int code = real->xOpen(real, name, actualOf(file), flags, outFlags);
  file->pMethods = actualOf(file)->pMethods == nullptr ? nullptr : &methods;
  return code;
}

int Sleep(sqlite3_vfs*, int microseconds) {
  ++seen.pauses;
  if (duringPause) duringPause(seen.pauses);
  return real->xSleep(real, microseconds);
}

int onStatement(unsigned, void*, void* statement, void*) {
  run.emplace_back(sqlite3_sql(static_cast<sqlite3_stmt*>(statement)));
  return 0;
}

int onConnection(sqlite3* database, const char**, const sqlite3_api_routines*) {
  return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, onStatement, nullptr);
}

void (*const kOnConnection)() = reinterpret_cast<void (*)()>(onConnection);

}  // namespace

WatchedSqlite::WatchedSqlite() {
  sqlite3_initialize();
  seen = {};
  run.clear();
  fatalChange = -1;
  real = sqlite3_vfs_find(nullptr);
  methods = {};
  methods.iVersion = 1;  // without shared memory, which a rollback journal does not use
  methods.xClose = Close;
  methods.xRead = Read;
  methods.xWrite = Write;
  methods.xTruncate = Truncate;
  methods.xSync = Sync;
  methods.xFileSize = FileSize;
  methods.xLock = Lock;
  methods.xUnlock = Unlock;
  methods.xCheckReservedLock = CheckReservedLock;
  methods.xFileControl = FileControl;
  methods.xSectorSize = SectorSize;
  methods.xDeviceCharacteristics = DeviceCharacteristics;
  watching = *real;
  watching.zName = "watching";
  watching.szOsFile = static_cast<int>(sizeof(WatchedFile)) + real->szOsFile;
  watching.xOpen = Open;
  watching.xDelete = Delete;
  watching.xSleep = Sleep;
  sqlite3_vfs_register(&watching, 1);
  sqlite3_auto_extension(kOnConnection);
}

WatchedSqlite::~WatchedSqlite() {
  sqlite3_cancel_auto_extension(kOnConnection);
  sqlite3_vfs_unregister(&watching);
  sqlite3_vfs_register(real, 1);
  duringPause = nullptr;
  whenBusy = nullptr;
}

FileTraffic WatchedSqlite::traffic() const {
  return seen;
}

std::vector<std::string> WatchedSqlite::statements() const {
  return run;
}

void WatchedSqlite::setOnPause(std::function<void(int)> onPause) {
  duringPause = std::move(onPause);
}

void WatchedSqlite::setOnBusy(std::function<void()> onBusy) {
  whenBusy = std::move(onBusy);
}

void WatchedSqlite::killAtChange(int number) {
  seen.writes = 0;
  fatalChange = number;
}

}  // namespace qv_commons::desktop
