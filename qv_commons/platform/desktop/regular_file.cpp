#include "qv_commons/platform/desktop/regular_file.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

#include "qv_commons/platform/desktop/background_work.h"
#include "qv_commons/platform/desktop/file_descriptor.h"

namespace qv_commons::desktop {
namespace {

// After so many bytes a reader that is not wanted any more stops.
constexpr std::size_t kReadPiece = 1 << 20;

FileContents failure(int error) {
  return {std::nullopt, describeError(error)};
}

}  // namespace

FileContents readRegularFile(const FileLocation& location) {
  // Opening a pipe must not wait for its writer.
  const FileDescriptor file(::open(location.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.isOpen()) return failure(errno);
  struct stat status = {};
  if (::fstat(file.number(), &status) != 0) return failure(errno);
  if (S_ISDIR(status.st_mode)) return failure(EISDIR);
  if (!S_ISREG(status.st_mode)) return failure(EOPNOTSUPP);

  // One byte more than the size finds the end without growing; files that hold more than they say,
  // as those under /proc do, grow it.
  std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    if (BackgroundWork::isStopRequested()) return failure(ECANCELED);
    const std::size_t room = std::min(kReadPiece, bytes.size() - length);
    const ssize_t got = ::read(file.number(), bytes.data() + length, room);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return failure(errno);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
    if (length == bytes.size()) bytes.resize(2 * bytes.size());
  }
  bytes.resize(length);
  return {std::move(bytes), ""};
}

}  // namespace qv_commons::desktop
