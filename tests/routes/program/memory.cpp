#include <iostream>

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/qv_commons.h"

int main() {
  qv_commons::memory::MemoryPlatform memory;
  qv_commons::ScopedPlatform scope(memory.platform());
  memory.mainBundle().info["CFBundleShortVersionString"] = "2.4.1";
  memory.mainBundle().info["CFBundleVersion"] = "317";
  std::cout << qv_commons::QV_AppInfoHelper::appVersion() << "\n";
}
