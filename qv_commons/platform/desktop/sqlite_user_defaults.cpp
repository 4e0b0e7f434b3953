#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

#include <algorithm>
#include <filesystem>
#include <thread>
#include <utility>

#include "qv_commons/platform/desktop/private_folder.h"

namespace qv_commons::desktop {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPatience(250);
constexpr milliseconds kPause(5);          // between two attempts to read
constexpr milliseconds kRetryAfter(2000);  // a write that has failed

std::string fileName(const std::string& identifier) {
  std::string name = identifier.empty() ? "unnamed" : identifier;
  for (char& character : name) {
    if (character == '/' || character == '\0') character = '_';
  }
  return name + ".defaults";
}

}  // namespace

SqliteUserDefaults::SqliteUserDefaults(const std::string& folder, const std::string& identifier,
                                       ErrorHandler report)
    : folder_(folder),
      report_(std::move(report)),
      file_(std::filesystem::path(folder) / fileName(identifier)),
      copy_(std::filesystem::path(folder) / (fileName(identifier) + ".copy")) {
  retry_.setInterval(kRetryAfter);
  QObject::connect(&retry_, &QTimer::timeout, &retry_, [this] { commitWith(milliseconds(0)); });
}

SqliteUserDefaults::~SqliteUserDefaults() {
  commit();
}

bool SqliteUserDefaults::boolForKey(std::string_view key) const {
  if (const auto found = waiting_.find(key); found != waiting_.end()) return found->second;
  refresh(std::chrono::steady_clock::now() + kPatience);
  const auto found = known_.find(key);
  return found != known_.end() && found->second;
}

void SqliteUserDefaults::setBool(bool value, std::string_view key) {
  waiting_.insert_or_assign(std::string(key), value);
}

void SqliteUserDefaults::commit() {
  commitWith(kPatience);
}

void SqliteUserDefaults::commitWith(milliseconds patience) {
  if (waiting_.empty()) return;
  if (const Complaint failure = write(patience)) {
    tell(failure);
    retry_.start();
    return;
  }
  for (const auto& [key, value] : waiting_) known_.insert_or_assign(key, value);
  waiting_.clear();
  told_.clear();
  retry_.stop();
}

// Both or a failure: what a user is told must be there whichever file the next start reads. Where
// the file fails, the copy may still do.
Complaint SqliteUserDefaults::write(milliseconds patience) {
  if (const Failure failure = makePrivateFolder(folder_)) {
    return "The settings are in the memory alone until they can be written. " + inEnglish(*failure);
  }
  const SqliteFile::TimePoint end = std::chrono::steady_clock::now() + patience;
  if (known_.empty()) refresh(end);
  const Complaint failure = writeTo(file_, end);
  const Complaint ofCopy = writeTo(copy_, end);
  return failure ? failure : ofCopy;
}

Complaint SqliteUserDefaults::writeTo(SqliteFile& file, SqliteFile::TimePoint end) {
  Complaint failure = file.write(waiting_, known_, end);
  if (!failure) return std::nullopt;
  Complaint damage;
  if (take(file, damage) != SqliteFile::State::absent) return failure;
  tell(damage);
  return file.write(waiting_, known_, end);
}

// Waits once: not where the last attempt was in vain.
void SqliteUserDefaults::refresh(SqliteFile::TimePoint end) const {
  const bool waits = couldRead_;
  Complaint failure;
  while (!(couldRead_ = tryToRead(failure)) && waits && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(kPause);
  }
  if (!couldRead_) tell(failure);
}

// From the file, or else its copy.
bool SqliteUserDefaults::tryToRead(Complaint& failure) const {
  using State = SqliteFile::State;
  Complaint ofFile;
  const State file = take(file_, ofFile);
  if (file == State::whole) return true;
  Complaint ofCopy;
  const State copy = take(copy_, ofCopy);
  if (file == State::absent) tell(ofFile);  // it was damaged
  if (copy == State::absent) tell(ofCopy);
  if (copy == State::whole) {
    if (file == State::failed) tell(ofFile);
    return true;
  }
  failure = file == State::absent ? ofCopy : ofFile;
  return file == State::absent && copy == State::absent;
}

SqliteFile::State SqliteUserDefaults::take(SqliteFile& file, Complaint& failure) const {
  SqliteFile::Contents contents = file.read();
  for (const auto& [key, value] : contents.values) known_.insert_or_assign(key, value);
  failure = std::move(contents.failure);
  return contents.state;
}

void SqliteUserDefaults::tell(const Complaint& failure) const {
  if (failure && told_.insert(*failure).second && report_) report_(*failure);
}

}  // namespace qv_commons::desktop
