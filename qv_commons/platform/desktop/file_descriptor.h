// An open file of the system's, closed at the end of its scope.
#pragma once

#include <cerrno>
#include <string>
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

// The system's words for an error number, for example "No such file or directory".
inline std::string describeError(int number) {
  return std::generic_category().message(number);
}

}  // namespace qv_commons::desktop
