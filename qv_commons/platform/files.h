// Reading whole files.
#pragma once

#include <optional>
#include <string>

#include "qv_commons/platform/bundle.h"

namespace qv_commons {

struct FileContents {
  std::optional<std::string> bytes;  // the whole file; nothing where it could not be read
  std::string errorDescription;      // why not, in the platform's words; empty on success
};

class Files {
 public:
  virtual ~Files() = default;

  // A folder, a missing or an unreadable file gives no bytes and a description. Main thread.
  virtual FileContents read(const FileLocation& location) const = 0;
};

}  // namespace qv_commons
