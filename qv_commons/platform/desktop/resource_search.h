// Where resources are: within a bundle, and next to the library's own code.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qv_commons::desktop {

inline constexpr std::string_view kResourceBundle = "QV_Commons_iOS.bundle";

// `name`.`extension` within `directory`. A name may lead into a folder of it ("texts/en"), never
// out of it: nothing for "../x" and for "/x". Nothing, too, where there is no such file or folder.
std::optional<std::string> findResource(const std::filesystem::path& directory,
                                        std::string_view name, std::string_view extension);

// The first such file or folder in `folders`.
std::optional<std::string> findResource(const std::vector<std::filesystem::path>& folders,
                                        std::string_view name, std::string_view extension);

// The folders in which the resource bundle may lie next to `program`: its own, share/qv_commons of
// that, and the same of up to three folders above it. So bin/notes, lib/libnotes.so and
// libexec/notes/notes all find share/qv_commons, wherever the folder of all of them has been moved.
std::vector<std::filesystem::path> resourceFoldersNextTo(const std::filesystem::path& program);

// Those in which it is looked for: the one that the host names, be it the bundle itself or the
// folder around it, or else those next to this code.
std::vector<std::filesystem::path> resourceFolders(const std::string& resourceDirectory);

// The program or shared library that this code has been linked into; empty where the system
// doesn't tell.
std::filesystem::path fileOfThisCode();

}  // namespace qv_commons::desktop
