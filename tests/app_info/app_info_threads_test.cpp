// App information and the JSON files add no state of their own: where bundles may be read on any
// thread, as on iOS, so may they.
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons {
namespace {

class ReadOnlyBundle final : public Bundle {
 public:
  std::optional<std::string> textForInfoDictionaryKey(std::string_view key) const override {
    return std::string(key);
  }
  std::optional<std::string> bundleIdentifier() const override { return "com.example.notes"; }
  std::optional<FileLocation> appStoreReceiptURL() const override { return std::nullopt; }
  std::optional<FileLocation> URLForResource(std::string_view name,
                                             std::string_view extension) const override {
    return std::string(name).append(".").append(extension);
  }
};

class ReadOnlyBundles final : public Bundles {
 public:
  const Bundle& mainBundle() const override { return bundle_; }
  const Bundle& libraryBundle() const override { return bundle_; }
  std::shared_ptr<Bundle> bundleWithURL(const FileLocation&) const override { return nullptr; }
  FileContents read(const FileLocation& location) const override { return {location, ""}; }

 private:
  ReadOnlyBundle bundle_;
};

TEST(AppInfoThreads, MayAskAllAtOnce) {
  memory::MemoryPlatform memory;
  ReadOnlyBundles bundles;
  const Platform& rest = memory.platform();
  const Platform platform = {
      bundles,           rest.device,      rest.clock,          rest.calendar,
      rest.userDefaults, rest.application, rest.viewControllers};
  const ScopedPlatform scope(platform);
  std::vector<std::string> answers(4);
  std::vector<std::thread> threads;
  for (std::string& answer : answers) {
    threads.emplace_back([&answer] {
      for (int i = 0; i < 100; ++i) {
        answer = QV_AppInfoHelper::appId() + " " + QV_AppInfoHelper::appVersion() + " " +
                 QV_BundleFileHelper::loadJsonFromBundle("config").value_or("");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(answers,
            std::vector<std::string>(
                4, "com.example.notes CFBundleShortVersionString(CFBundleVersion) config.json"));
}

}  // namespace
}  // namespace qv_commons
