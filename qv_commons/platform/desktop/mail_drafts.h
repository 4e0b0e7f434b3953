// Messages kept as files.
#pragma once

#include <string>
#include <string_view>

namespace qv_commons::desktop {

// Writes `bytes` to the file `name` in `directory`, which is made where it is missing. Readable by
// the user alone (mode 0600). At every instant the file holds all of its old or all of its new
// bytes, and when this returns they are on the disk. The error in the system's words, or "".
std::string writeDraft(const std::string& directory, const std::string& name,
                       std::string_view bytes);

}  // namespace qv_commons::desktop
