#include "qv_commons/platform/memory/memory_platform.h"

#include <utility>

namespace qv_commons::memory {

MemoryPlatform::MemoryPlatform()
    : platform_{.bundles = bundles_,
                .device = device_,
                .clock = clock_,
                .calendar = calendar_,
                .userDefaults = userDefaults_,
                .application = application_,
                .viewControllers = viewControllers_} {}

MemoryPlatform::~MemoryPlatform() {
  dismissAll(transitions_.presentations());
}

std::shared_ptr<ViewController> MemoryPlatform::makeViewController(std::string name,
                                                                   ViewControllerKind kind) {
  return std::make_shared<MemoryViewController>(kind, record_, transitions_, std::move(name));
}

}  // namespace qv_commons::memory
