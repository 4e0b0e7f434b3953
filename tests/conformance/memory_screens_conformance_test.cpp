#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/conformance/bundle_resources_conformance.h"
#include "tests/conformance/calendar_conformance.h"
#include "tests/conformance/screens_conformance.h"
#include "tests/conformance/user_defaults_conformance.h"

namespace qv_commons::test {
namespace {

class Memory {
 public:
  const Platform& platform() { return platform_.platform(); }
  UserDefaults& userDefaults() { return platform_.userDefaults(); }
  bool nextStartReads(const char* key) {
    const auto& committed = platform_.userDefaults().committed;
    const auto found = committed.find(key);
    return found != committed.end() && found->second;
  }
  Calendar& calendar() { return platform_.calendar(); }
  Bundles& bundles() { return platform_.bundles(); }
  Files& files() { return platform_.files(); }

  void addToMainBundle(const std::string& name, const std::string& bytes) {
    platform_.mainBundle().resources[name] = "/app/" + name;
    platform_.files().files["/app/" + name] = {bytes, ""};
  }

  std::shared_ptr<ViewController> makeHost() { return platform_.makeViewController("home"); }
  bool pick(double birth) { return screen().pick("datePicker", birth); }
  bool tapConfirm() { return screen().tap("confirmBtn"); }
  bool tapContactLink() { return screen().tapLink("contact", 38); }

 private:
  memory::MemoryScreen& screen() { return *platform_.layoutLoader().lastScreen(); }

  memory::MemoryPlatform platform_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(OfMemory, UserDefaultsConformance, Memory);
INSTANTIATE_TYPED_TEST_SUITE_P(OfMemory, CalendarConformance, Memory);
INSTANTIATE_TYPED_TEST_SUITE_P(OfMemory, BundleResourcesConformance, Memory);
INSTANTIATE_TYPED_TEST_SUITE_P(OfMemory, ScreensConformance, Memory);

}  // namespace
}  // namespace qv_commons::test
