#include "qv_commons/platform/desktop/mail_drafts.h"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/file_descriptor.h"
#include "qv_commons/platform/desktop/mail_reading.h"
#include "qv_commons/platform/desktop/private_folder.h"

namespace qv_commons::desktop {
namespace {

constexpr std::string_view kEnding = ".eml";
constexpr std::string_view kUnfinished = ".unfinished";

// Holds the headers of every message that is written here but for the longest of subjects.
constexpr std::size_t kBeginning = 1 << 16;

// The lock says that somebody is writing the file, for as long as that process lives.
bool writeNewFile(const std::string& path, const std::function<bool(const MailSink&)>& write) {
  const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
  return file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0 &&
         ::ftruncate(file.number(), 0) == 0 && ::fchmod(file.number(), 0600) == 0 &&
         write([&](std::string_view bytes) { return writeAll(file, bytes); }) &&
         ::fsync(file.number()) == 0;
}

std::string readBeginning(const std::string& path) {
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  std::string bytes(kBeginning, '\0');
  const ssize_t length = file.isOpen() ? ::read(file.number(), bytes.data(), bytes.size()) : 0;
  bytes.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return bytes;
}

}  // namespace

Failure writeDraft(const std::string& directory, const std::string& name,
                   const std::function<bool(const MailSink&)>& write) {
  if (Failure failure = makePrivateFolder(directory)) return failure;
  const std::string path = directory + "/" + name;
  const std::string unfinished = directory + "/." + name + std::string(kUnfinished);
  errno = 0;
  if (writeNewFile(unfinished, write) && std::rename(unfinished.c_str(), path.c_str()) == 0) {
    return syncFolder(directory);
  }
  const int reason = errno;
  ::unlink(unfinished.c_str());
  return notWritten(path, reason);
}

void removeUnfinishedDrafts(const std::string& directory) {
  for (const std::string path : entriesOf(directory)) {
    if (!path.ends_with(kUnfinished)) continue;
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0) ::unlink(path.c_str());
  }
}

std::vector<DraftSummary> listDrafts(const std::string& directory) {
  std::vector<DraftSummary> drafts;
  for (const std::string path : entriesOf(directory)) {
    struct stat status = {};
    if (!path.ends_with(kEnding) || ::stat(path.c_str(), &status) != 0) continue;
    if (!S_ISREG(status.st_mode)) continue;
    drafts.push_back({std::filesystem::path(path).filename(), subjectOf(readBeginning(path)),
                      status.st_mtim.tv_sec});
  }
  std::sort(drafts.begin(), drafts.end(), [](const DraftSummary& one, const DraftSummary& other) {
    return one.written > other.written;
  });
  return drafts;
}

Result<MailMessage> readDraft(const std::string& path) {
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.isOpen()) {
    return {std::nullopt, Sentence("%1 can't be read: %2.", {path, describeError(errno)})};
  }
  std::optional<MailMessage> message = readMailMessage(file.number());
  if (!message) return {std::nullopt, Sentence("%1 is not an e-mail.", {path})};
  return {std::move(message)};
}

}  // namespace qv_commons::desktop
