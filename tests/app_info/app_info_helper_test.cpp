#include "qv_commons/app_info/app_info_helper.h"

#include <gtest/gtest.h>

#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons {
namespace {

class AppInfo : public testing::Test {
 protected:
  memory::MemoryPlatform memory;
  ScopedPlatform scope{memory.platform()};
  memory::MemoryBundle& bundle = memory.mainBundle();
};

TEST_F(AppInfo, JoinsShortVersionAndBuild) {
  bundle.info["CFBundleShortVersionString"] = "2.4.1";
  bundle.info["CFBundleVersion"] = "317";
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "2.4.1(317)");

  bundle.info["CFBundleShortVersionString"] = "1.0";
  bundle.info["CFBundleVersion"] = "1";
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "1.0(1)");
}

TEST_F(AppInfo, AlwaysWritesTheParentheses) {
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "()");
  bundle.info["CFBundleVersion"] = "317";
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "(317)");
}

TEST_F(AppInfo, TrimsNothing) {
  bundle.info["CFBundleShortVersionString"] = " 1.0\n";
  bundle.info["CFBundleVersion"] = "";
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), " 1.0\n()");
}

TEST_F(AppInfo, ReadsTheDisplayNameAndNoOtherKey) {
  bundle.info["CFBundleName"] = "notes";
  EXPECT_EQ(QV_AppInfoHelper::appName(), "");
  bundle.info["CFBundleDisplayName"] = "Notizen";
  EXPECT_EQ(QV_AppInfoHelper::appName(), "Notizen");
}

TEST_F(AppInfo, ReadsTheIdentifierFromTheBundleAndNotFromAKey) {
  bundle.info["CFBundleIdentifier"] = "com.example.key";
  EXPECT_EQ(QV_AppInfoHelper::appId(), "");
  bundle.identifier = "com.example.notes";
  EXPECT_EQ(QV_AppInfoHelper::appId(), "com.example.notes");
}

TEST_F(AppInfo, ReadsTheBundleAtEveryCall) {
  memory.record().clear();
  QV_AppInfoHelper::appVersion();
  QV_AppInfoHelper::appVersion();
  QV_AppInfoHelper::appId();
  QV_AppInfoHelper::appName();
  EXPECT_EQ(memory.record().lines(),
            (std::vector<std::string>{
                "mainBundle.textForInfoDictionaryKey CFBundleShortVersionString",
                "mainBundle.textForInfoDictionaryKey CFBundleVersion",
                "mainBundle.textForInfoDictionaryKey CFBundleShortVersionString",
                "mainBundle.textForInfoDictionaryKey CFBundleVersion",
                "mainBundle.bundleIdentifier",
                "mainBundle.textForInfoDictionaryKey CFBundleDisplayName",
            }));
}

}  // namespace
}  // namespace qv_commons
