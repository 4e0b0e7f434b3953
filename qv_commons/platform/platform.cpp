#include "qv_commons/platform/platform.h"

#include <atomic>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons {
namespace {

// Atomic because the time operations, which read the clock, may run on any thread.
std::atomic<const Platform*> current{nullptr};

}  // namespace

void installPlatform(const Platform& platform) {
  current.store(&platform, std::memory_order_release);
}

const Platform& currentPlatform() {
  const Platform* platform = current.load(std::memory_order_acquire);
  if (platform == nullptr) fatalError("no platform is installed: install an adapter's first");
  return *platform;
}

ScopedPlatform::ScopedPlatform(const Platform& platform)
    : previous_(current.exchange(&platform, std::memory_order_acq_rel)) {}

ScopedPlatform::~ScopedPlatform() {
  current.store(previous_, std::memory_order_release);
}

}  // namespace qv_commons
