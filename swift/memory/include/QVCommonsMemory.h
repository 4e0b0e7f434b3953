// The memory adapter for Swift, which does not see types that can't be copied.
#pragma once
#include <QVCommonsCore.h>  // first: what it declares is that module's, not this one's again

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/platform/platform.h"

namespace qv_commons::memory {

// Installs an adapter for the rest of the process, with that short version of the app.
inline void installMemoryPlatform(const char* shortVersion) {
  static auto* const memory = new MemoryPlatform;
  memory->mainBundle().info["CFBundleShortVersionString"] = std::string(shortVersion);
  installPlatform(memory->platform());
}

}  // namespace qv_commons::memory
