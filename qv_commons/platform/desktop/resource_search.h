// Where resources are: within a bundle, and next to the library's own code.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace qv_commons::desktop {

// `name`.`extension` within `directory`. A name may lead into a folder of it ("texts/en"), never
// out of it: nothing for "../x" and for "/x". Nothing, too, where there is no such file or folder.
std::optional<std::string> findResource(const std::filesystem::path& directory,
                                        std::string_view name, std::string_view extension);

// The same next to `program`: in its folder or in share/qv_commons of that folder, or of up to
// three folders above it. So bin/notes, lib/libnotes.so and libexec/notes/notes all find
// share/qv_commons, wherever the folder of all of them has been moved to.
std::optional<std::string> findResourceNextTo(const std::filesystem::path& program,
                                              std::string_view name, std::string_view extension);

// The program or shared library that this code has been linked into; empty where the system
// doesn't tell.
std::filesystem::path fileOfThisCode();

}  // namespace qv_commons::desktop
