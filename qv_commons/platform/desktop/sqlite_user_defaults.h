// The user defaults of the desktop: one SQLite file a host identifier, and its copy.
//
// `commit` is one transaction in the file, then one in the copy: killed before the first is
// complete, the next start sees the user defaults as they were; afterwards all of them. Once it has
// returned without an error, both are on the disk.
//
// A read waits for nobody. Where the file can't be read (another process is writing, no rights, no
// descriptor left, a failing or damaged disk), the copy counts; where neither can, the read is
// tried again for at most 250 ms. What was once read or written in this process is never forgotten.
//
// A write waits for other processes at most 250 ms. One that fails is told once, stays in memory
// and is tried again by a timer, with the next commit, and at the end.
//
// Reading alone writes nothing and makes no file, but a damaged file is set aside. Several
// processes may share the files. Main thread only.
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "qv_commons/platform/desktop/sqlite_file.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::desktop {

class SqliteUserDefaults final : public UserDefaults {
 public:
  using ErrorHandler = std::function<void(const std::string& message)>;

  // `folder` is made (mode 0700) at the first write. The files in it are named after `identifier`,
  // for example "com.example.notes.defaults" and "com.example.notes.defaults.copy"; what can't
  // stand in a file name becomes "_". `report` gets one sentence, with path and reason, for each
  // failure; may be empty.
  SqliteUserDefaults(const std::string& folder, const std::string& identifier, ErrorHandler report);
  ~SqliteUserDefaults() override;

  bool boolForKey(std::string_view key) const override;
  void setBool(bool value, std::string_view key) override;
  void commit() override;

 private:
  using Milliseconds = std::chrono::milliseconds;

  void refresh(SqliteFile::TimePoint end) const;
  bool tryToRead(Complaint& failure) const;
  SqliteFile::State take(SqliteFile& file, Complaint& failure) const;
  Complaint write(Milliseconds patience);
  Complaint writeTo(SqliteFile& file, SqliteFile::TimePoint end);
  void commitWith(Milliseconds patience);
  void tell(const Complaint& failure) const;

  std::string folder_;
  ErrorHandler report_;
  mutable SqliteFile file_;
  mutable SqliteFile copy_;
  mutable SqliteFile::Values known_;    // as read or written last
  mutable bool couldRead_ = true;       // at the last attempt
  mutable std::set<std::string> told_;  // since the last write that went well
  SqliteFile::Values waiting_;
  QTimer retry_;
};

}  // namespace qv_commons::desktop
