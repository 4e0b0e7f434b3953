#include "qv_commons/platform/desktop/sqlite_user_defaults.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace qv_commons::desktop {

namespace {

std::string fileName(const std::string& identifier) {
  std::string name = identifier.empty() ? "unnamed" : identifier;
  for (char& character : name) {
    if (character == '/' || character == '\0') character = '_';
  }
  return name + ".defaults";
}

// For the user alone, as the XDG rules for data folders ask.
bool makeFolder(const std::string& folder, std::error_code& error) {
  const std::filesystem::path path(folder);
  if (std::filesystem::is_directory(path, error)) return true;
  std::filesystem::create_directories(path.parent_path(), error);
  if (error) return false;
  if (mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST) return true;
  error.assign(errno, std::generic_category());
  return false;
}

}  // namespace

SqliteUserDefaults::SqliteUserDefaults(const std::string& folder, const std::string& identifier,
                                       ErrorHandler report)
    : folder_(folder),
      report_(std::move(report)),
      file_(std::filesystem::path(folder) / fileName(identifier), report_) {}

SqliteUserDefaults::~SqliteUserDefaults() {
  commit();
}

bool SqliteUserDefaults::boolForKey(std::string_view key) const {
  if (const auto found = waiting_.find(key); found != waiting_.end()) return found->second;
  if (auto values = file_.read()) read_ = *std::move(values);
  const auto found = read_.find(key);
  return found != read_.end() && found->second;
}

void SqliteUserDefaults::setBool(bool value, std::string_view key) {
  waiting_.insert_or_assign(std::string(key), value);
}

void SqliteUserDefaults::commit() {
  if (waiting_.empty()) return;
  std::error_code error;
  if (!makeFolder(folder_, error)) {
    if (report_) report_("The settings' folder " + folder_ + ": " + error.message());
    return;
  }
  if (file_.write(waiting_)) waiting_.clear();
}

}  // namespace qv_commons::desktop
