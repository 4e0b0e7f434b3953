#include <iostream>

#include "qv_commons/platform/memory/memory_platform.h"
#include "qv_commons/qv_commons.h"

int main() {
  qv_commons::memory::MemoryPlatform memory;
  qv_commons::ScopedPlatform scope(memory.platform());
  memory.mainBundle().info["CFBundleShortVersionString"] = std::string("2.4.1");

  auto home = memory.makeViewController("home");
  qv_commons::QV_SupportHelper::shared().contactSupport(
      *home, "support@example.com", "Help", {"pro_monthly"}, "Hello!", std::nullopt, {});
  std::cout << memory.viewControllers().composers().front()->message().body;
}
