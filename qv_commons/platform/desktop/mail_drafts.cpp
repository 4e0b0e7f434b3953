#include "qv_commons/platform/desktop/mail_drafts.h"

#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/file_descriptor.h"

namespace qv_commons::desktop {
namespace {

bool writeAll(const FileDescriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool writeNewFile(const std::string& path, std::string_view bytes) {
  const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
  return file.isOpen() && ::fchmod(file.number(), 0600) == 0 && writeAll(file, bytes) &&
         ::fsync(file.number()) == 0;
}

// A new name reaches the disk with its folder.
bool syncDirectory(const std::string& path) {
  const FileDescriptor directory(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return directory.isOpen() && ::fsync(directory.number()) == 0;
}

}  // namespace

std::string writeDraft(const std::string& directory, const std::string& name,
                       std::string_view bytes) {
  std::error_code error;
  std::filesystem::create_directories(directory, error);
  if (error) return error.message();
  const std::string path = directory + "/" + name;
  const std::string unfinished = directory + "/." + name + ".unfinished";
  if (writeNewFile(unfinished, bytes) && std::rename(unfinished.c_str(), path.c_str()) == 0 &&
      syncDirectory(directory)) {
    return "";
  }
  std::string description = describeError(errno);
  ::unlink(unfinished.c_str());
  return description;
}

}  // namespace qv_commons::desktop
