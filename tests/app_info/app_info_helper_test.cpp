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
  bundle.info["CFBundleShortVersionString"] = std::string("2.4.1");
  bundle.info["CFBundleVersion"] = std::string("317");
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "2.4.1(317)");

  bundle.info["CFBundleShortVersionString"] = std::string("1.0");
  bundle.info["CFBundleVersion"] = std::string("1");
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "1.0(1)");
}

TEST_F(AppInfo, AlwaysWritesTheParentheses) {
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "()");
  bundle.info["CFBundleVersion"] = std::string("317");
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), "(317)");
}

TEST_F(AppInfo, TreatsANumberAsMissing) {
  bundle.info["CFBundleShortVersionString"] = std::string("1.0");
  for (const InfoDictionaryValue& value :
       {InfoDictionaryValue(std::int64_t{317}), InfoDictionaryValue(3.5), InfoDictionaryValue(true),
        InfoDictionaryValue(OtherObject{})}) {
    bundle.info["CFBundleVersion"] = value;
    EXPECT_EQ(QV_AppInfoHelper::appVersion(), "1.0()");
  }
}

TEST_F(AppInfo, TrimsNothing) {
  bundle.info["CFBundleShortVersionString"] = std::string(" 1.0\n");
  bundle.info["CFBundleVersion"] = std::string("");
  EXPECT_EQ(QV_AppInfoHelper::appVersion(), " 1.0\n()");
}

TEST_F(AppInfo, ReadsTheDisplayNameAndNoOtherKey) {
  bundle.info["CFBundleName"] = std::string("notes");
  EXPECT_EQ(QV_AppInfoHelper::appName(), "");
  bundle.info["CFBundleDisplayName"] = std::string("Notizen");
  EXPECT_EQ(QV_AppInfoHelper::appName(), "Notizen");
  bundle.info["CFBundleDisplayName"] = std::int64_t{1};
  EXPECT_EQ(QV_AppInfoHelper::appName(), "");
}

TEST_F(AppInfo, ReadsTheIdentifierFromTheBundleAndNotFromAKey) {
  bundle.info["CFBundleIdentifier"] = std::string("com.example.key");
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
                "mainBundle.objectForInfoDictionaryKey CFBundleShortVersionString",
                "mainBundle.objectForInfoDictionaryKey CFBundleVersion",
                "mainBundle.objectForInfoDictionaryKey CFBundleShortVersionString",
                "mainBundle.objectForInfoDictionaryKey CFBundleVersion",
                "mainBundle.bundleIdentifier",
                "mainBundle.objectForInfoDictionaryKey CFBundleDisplayName",
            }));
}

}  // namespace
}  // namespace qv_commons
