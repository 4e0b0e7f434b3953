#include "qv_commons/platform/desktop/private_folder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

#include "qv_commons/platform/desktop/file_descriptor.h"

namespace qv_commons::desktop {

Failure makePrivateFolder(const std::string& folder) {
  const std::filesystem::path path(folder);
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) return std::nullopt;
  const std::filesystem::path above = path.parent_path();
  if (!above.empty() && above != path) {
    if (Failure failure = makePrivateFolder(above)) return failure;
  }
  if (::mkdir(folder.c_str(), S_IRWXU) == 0) return syncFolder(above.empty() ? "." : above);
  const int reason = errno == EEXIST ? ENOTDIR : errno;
  // Another process may have made it meanwhile.
  if (std::filesystem::is_directory(path, error)) return std::nullopt;
  return Sentence("The folder %1 can't be made: %2.", {folder, describeError(reason)});
}

std::vector<std::filesystem::path> entriesOf(const std::string& folder) {
  std::vector<std::filesystem::path> entries;
  std::error_code error;
  // A range-based loop would throw where a disk fails halfway.
  for (auto entry = std::filesystem::directory_iterator(folder, error);
       entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    entries.push_back(entry->path());
  }
  return entries;
}

Failure syncFolder(const std::string& folder) {
  const FileDescriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.isOpen() && ::fsync(directory.number()) == 0) return std::nullopt;
  return Sentence("The folder %1 can't be written: %2.", {folder, describeError(errno)});
}

Sentence notWritten(const std::string& path, int reason) {
  return Sentence("%1 can't be written: %2.", {path, describeError(reason)});
}

}  // namespace qv_commons::desktop
