// Watches what SQLite does with its files, and can end the process in the middle of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace qv_commons::desktop {

struct FileTraffic {
  int opens = 0;
  int reads = 0;
  int writes = 0;           // whatever changes a file: write, truncate, sync, delete
  int unsyncedDeletes = 0;  // the folder is left to the system
  int pauses = 0;           // in waiting for other processes, of 5 ms each
};

// While it lives, every SQLite file that is opened is watched.
class WatchedSqlite {
 public:
  WatchedSqlite();
  ~WatchedSqlite();
  WatchedSqlite(const WatchedSqlite&) = delete;
  WatchedSqlite& operator=(const WatchedSqlite&) = delete;

  FileTraffic traffic() const;
  std::vector<std::string> statements() const;  // that were run

  // Called in each pause, with its number, from 1.
  void setOnPause(std::function<void(int)> onPause);

  // Called whenever a file can't be had because somebody else holds it.
  void setOnBusy(std::function<void()> onBusy);

  // Kills this process with SIGKILL just before the change of that number, from 0.
  void killAtChange(int number);
};

}  // namespace qv_commons::desktop
