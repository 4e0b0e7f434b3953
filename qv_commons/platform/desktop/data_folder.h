// Where the system keeps an app's data.
#pragma once

#include <string>

namespace qv_commons::desktop {

// By the XDG rules $XDG_DATA_HOME, or ~/.local/share, and in it a folder for this app, for example
// "/home/ada/.local/share/notes". A relative XDG_DATA_HOME is ignored, as the rules ask; without
// HOME the user database says where the user's home is.
std::string appDataFolder();

}  // namespace qv_commons::desktop
