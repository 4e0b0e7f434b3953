// An open file of the system's, closed at the end of its scope.
#pragma once

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace qv_commons::desktop {

class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  ~FileDescriptor() {
    if (isOpen()) ::close(number_);
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;

  bool isOpen() const { return number_ >= 0; }
  int number() const { return number_; }

 private:
  int number_;
};

// Whether all of the bytes were written; errno says why not.
inline bool writeAll(const FileDescriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file.number(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// The system's words for an error number, for example "No such file or directory".
inline std::string describeError(int number) {
  return std::generic_category().message(number);
}

}  // namespace qv_commons::desktop
