#include "qv_commons/platform/desktop/resource_search.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <sstream>
#include <system_error>

namespace qv_commons::desktop {

namespace fs = std::filesystem;

namespace {

constexpr int kFoldersAbove = 3;

}  // namespace

std::optional<std::string> findResource(const fs::path& directory, std::string_view name,
                                        std::string_view extension) {
  std::string file(name);
  file.append(".").append(extension);
  const fs::path wanted(file);
  const bool leadsOut = wanted.is_absolute() ||
                        std::find(wanted.begin(), wanted.end(), "..") != wanted.end() ||
                        file.find('\0') != std::string::npos;
  if (directory.empty() || name.empty() || leadsOut) return std::nullopt;
  const fs::path path = directory / wanted;
  std::error_code error;
  if (!fs::exists(path, error)) return std::nullopt;
  return path.string();
}

std::optional<std::string> findResource(const std::vector<fs::path>& folders, std::string_view name,
                                        std::string_view extension) {
  for (const fs::path& folder : folders) {
    if (auto found = findResource(folder, name, extension)) return found;
  }
  return std::nullopt;
}

std::vector<fs::path> resourceFoldersNextTo(const fs::path& program) {
  std::vector<fs::path> folders;
  fs::path folder = program.parent_path();
  for (int level = 0; level <= kFoldersAbove && !folder.empty(); ++level) {
    folders.push_back(folder);
    folders.push_back(folder / "share" / "qv_commons");
    folder = folder == folder.parent_path() ? fs::path() : folder.parent_path();
  }
  return folders;
}

std::vector<fs::path> resourceFolders(const std::string& resourceDirectory) {
  if (resourceDirectory.empty()) return resourceFoldersNextTo(fileOfThisCode());
  const fs::path named = fs::path(resourceDirectory + "/").lexically_normal().parent_path();
  return {named.filename() == kResourceBundle ? named.parent_path() : named};
}

// A line of the file is "from-to permissions offset device inode path", with hexadecimal addresses.
// What the loader reports instead is, for the program itself, only the name it was called by.
fs::path fileOfThisCode() {
  const auto here = reinterpret_cast<std::uintptr_t>(&fileOfThisCode);
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    std::istringstream fields(line);
    std::uintptr_t from = 0;
    std::uintptr_t to = 0;
    char dash = 0;
    fields >> std::hex >> from >> dash >> to;
    const std::size_t path = line.find('/');
    if (here >= from && here < to && path != std::string::npos) return line.substr(path);
  }
  return {};
}

}  // namespace qv_commons::desktop
