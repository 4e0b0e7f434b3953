#include "qv_commons/platform/memory/memory_platform.h"

#include <utility>

namespace qv_commons::memory {

MemoryPlatform::MemoryPlatform()
    : platform_{.bundles = bundles_,
                .files = files_,
                .console = console_,
                .device = device_,
                .languages = device_,
                .screen = device_,
                .systemVersion = device_,
                .clock = clock_,
                .calendar = calendar_,
                .userDefaults = userDefaults_,
                .application = application_,
                .mailComposers = mail_,
                .alerts = alerts_,
                .layoutLoader = layoutLoader_} {}

std::shared_ptr<ViewController> MemoryPlatform::makeViewController(std::string name,
                                                                   ViewControllerKind kind) {
  auto made = std::make_shared<MemoryViewController>(record_, transitions_, std::move(name), kind);
  ViewController& controller = made->controller();
  return {std::move(made), &controller};
}

}  // namespace qv_commons::memory
