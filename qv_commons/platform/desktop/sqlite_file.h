// One SQLite file of boolean values by key, as the user defaults use it.
//
// Several processes may use the same file at once. Main thread only.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;

namespace qv_commons::desktop {

// Why nothing was done, in a sentence for the host; std::nullopt if it was.
using Complaint = std::optional<std::string>;

class SqliteFile {
 public:
  explicit SqliteFile(std::string path);
  ~SqliteFile();

  using Values = std::map<std::string, bool, std::less<>>;
  using TimePoint = std::chrono::steady_clock::time_point;

  // `busy` while another process writes, `absent` where there is no file yet.
  enum class State : std::uint8_t { whole, absent, busy, failed };

  struct Contents {
    State state = State::failed;
    Values values = {};  // all that the file holds, if it is whole
    Complaint failure = {};
  };

  // Waits for nobody. A damaged file, or one that is not of this kind, is renamed to
  // `<file>.damaged-1` (2, 3 ... if that exists): it is then absent, and the failure tells of it.
  Contents read();

  // In one transaction, which is on the disk when this returns: writes all of `changes`, and of
  // `known` what the file lacks. Makes the file (mode 0600) where there is none. Waits for other
  // processes until `end`.
  Complaint write(const Values& changes, const Values& known, TimePoint end);

 private:
  enum class Outcome : std::uint8_t { done, absent, busy, failed, damaged };
  enum class Mode : std::uint8_t { open, openOrMake };

  Outcome open(Mode mode);
  Outcome tryRead(Values& values);
  Outcome readRows(Values& values);
  Outcome tryWrite(const Values& changes, const Values& known, TimePoint end);
  Outcome insert(const char* text, const Values& values);
  Outcome run(const char* statement);
  Outcome outcomeOf(int code);
  Outcome fail(const std::string& why);
  Outcome setAsideIfDamaged(Values& values);
  Outcome moveAside();

  struct Close {
    void operator()(sqlite3* database) const;
  };

  std::string path_;
  std::string failure_;  // the sentence about the last outcome that was not `done`
  std::unique_ptr<sqlite3, Close> database_;
};

}  // namespace qv_commons::desktop
