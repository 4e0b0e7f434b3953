// The user defaults of the desktop: one SQLite file a host identifier, for the user's eyes only.
//
// `commit` is one transaction (`synchronous=FULL`): killed before it is complete, the next start
// sees the user defaults as they were; afterwards all of them.
//
// Where the disk fails (a folder that can't be written, no room left, another process that holds
// the file for more than five seconds), the error handler is told, the values stay in memory and
// are tried again with the next commit and at the end. A damaged file is renamed to
// `<file>.damaged-1` (2, 3 ... where that exists) and everything reads false.
//
// Reading alone writes nothing and makes no file. Several processes may share the file. Main
// thread only.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "qv_commons/platform/desktop/sqlite_file.h"
#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::desktop {

class SqliteUserDefaults final : public UserDefaults {
 public:
  using ErrorHandler = SqliteFile::ErrorHandler;

  // `folder` is made (mode 0700) at the first write. The file in it is named after `identifier`,
  // for example "com.example.notes.defaults"; what can't stand in a file name becomes "_".
  SqliteUserDefaults(const std::string& folder, const std::string& identifier, ErrorHandler report);
  ~SqliteUserDefaults() override;

  bool boolForKey(std::string_view key) const override;
  void setBool(bool value, std::string_view key) override;

  void commit() override;

 private:
  std::string folder_;
  ErrorHandler report_;
  mutable SqliteFile file_;
  mutable SqliteFile::Values
      read_;  // as last read: one failing read must not clear one flag of two
  SqliteFile::Values waiting_;
};

}  // namespace qv_commons::desktop
