// One SQLite file of boolean values by key, as the user defaults use it.
//
// It is opened for reading at the first read and made (mode 0600) at the first write. Several
// processes may use the same file at once. Main thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;

namespace qv_commons::desktop {

class SqliteFile {
 public:
  using ErrorHandler = std::function<void(const std::string& message)>;

  // `report` gets one sentence, with the path and the reason, for each failure; may be empty.
  SqliteFile(std::string path, ErrorHandler report);
  ~SqliteFile();

  using Values = std::map<std::string, bool, std::less<>>;

  // All that the file holds; empty where there is no file. A damaged file is set aside first.
  // Nothing where the file could not be read.
  std::optional<Values> read();

  // Writes all of `values` in one transaction. False where nothing was written.
  bool write(const Values& values);

 private:
  enum class Outcome : std::uint8_t { done, absent, failed, damaged };
  enum class Mode : std::uint8_t { open, openOrMake };

  Outcome open(Mode mode);
  Outcome tryRead(Values& values);
  Outcome tryWrite(const Values& values);
  Outcome insert(std::string_view key, bool value);
  Outcome run(const char* statement);
  Outcome outcomeOf(int code);
  void setAsideIfDamaged();
  bool moveAside();
  void report(const std::string& what) const;

  struct Close {
    void operator()(sqlite3* database) const;
  };

  std::string path_;
  ErrorHandler report_;
  std::unique_ptr<sqlite3, Close> database_;
};

}  // namespace qv_commons::desktop
