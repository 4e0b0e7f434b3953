// Folders for the user's eyes alone.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "qv_commons/platform/desktop/outcome.h"

namespace qv_commons::desktop {

// Makes `folder` and the folders above it that are missing, all of mode 0700, as the XDG rules for
// data folders ask. Those that are there stay as they are. When this returns, they are on the disk.
Failure makePrivateFolder(const std::string& folder);

// The paths of what is in `folder`, as far as it can be read.
std::vector<std::filesystem::path> entriesOf(const std::string& folder);

// A new name reaches the disk with its folder.
Failure syncFolder(const std::string& folder);

// That the file at `path` could not be written, for the system's `reason`.
Sentence notWritten(const std::string& path, int reason);

}  // namespace qv_commons::desktop
