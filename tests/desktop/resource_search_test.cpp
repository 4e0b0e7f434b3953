#include "qv_commons/platform/desktop/resource_search.h"

#include <QFile>
#include <QTemporaryDir>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/app_info/bundle_file_helper.h"
#include "qv_commons/platform/desktop/desktop_bundle.h"
#include "qv_commons/platform/desktop/layout_search.h"

#include "tests/desktop/age_gate_fixture.h"

namespace qv_commons::desktop {
namespace {

namespace fs = std::filesystem;

class ResourceSearchTest : public testing::Test {
 protected:
  std::string make(const std::string& path) {
    const fs::path whole = root_ / path;
    fs::create_directories(whole.parent_path());
    std::ofstream(whole) << "x";
    return whole;
  }

  QTemporaryDir temporary_;
  fs::path root_ = temporary_.path().toStdString();
};

TEST_F(ResourceSearchTest, FindsAFileByNameAndExtension) {
  const std::string file = make("bundle/config.json");
  EXPECT_EQ(findResource(root_ / "bundle", "config", "json"), file);
  EXPECT_EQ(findResource(root_ / "bundle", "config.json", "json"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", "other", "json"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", "", "json"), std::nullopt);
  EXPECT_EQ(findResource("", "config", "json"), std::nullopt);
}

TEST_F(ResourceSearchTest, StaysWithinTheFolder) {
  make("x.json");
  const std::string inner = make("bundle/texts/en.json");
  EXPECT_EQ(findResource(root_ / "bundle", "../x", "json"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", "texts/../../x", "json"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", "texts", "/../../x"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", ".", ""), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", "config", std::string("json\0", 5)), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", (root_ / "x").string(), "json"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", "texts/en", "json"), inner);
  EXPECT_EQ(findResource(root_ / "bundle", std::string("texts/en\0", 9), "json"), std::nullopt);
  EXPECT_EQ(findResource(root_ / "bundle", std::string(100'000, 'x'), "json"), std::nullopt);
}

TEST_F(ResourceSearchTest, FindsTheBundleOfAnInstalledProgramWhereverItHasBeenMoved) {
  make("opt/notes/share/qv_commons/QV_Commons_iOS.bundle/a.ui");
  fs::create_directories(root_ / "opt/notes/bin");
  const auto search = [this](const char* prefix, const char* program) {
    return findResource(resourceFoldersNextTo(root_ / prefix / program), "QV_Commons_iOS",
                        "bundle");
  };
  const std::string bundle = "share/qv_commons/QV_Commons_iOS.bundle";
  for (const char* program : {"bin/notes", "lib/libnotes.so", "lib/x86_64-linux-gnu/libnotes.so",
                              "libexec/notes/parts/notes"}) {
    EXPECT_EQ(search("opt/notes", program), root_ / "opt/notes" / bundle) << program;
  }
  fs::rename(root_ / "opt/notes", root_ / "opt/moved");
  EXPECT_EQ(search("opt/moved", "bin/notes"), root_ / "opt/moved" / bundle);
  EXPECT_EQ(search("opt/notes", "bin/notes"), std::nullopt);
}

TEST_F(ResourceSearchTest, PrefersTheBundleInTheProgramsOwnFolder) {
  make("share/qv_commons/QV_Commons_iOS.bundle/a.ui");
  make("bin/QV_Commons_iOS.bundle/a.ui");
  EXPECT_EQ(findResource(resourceFoldersNextTo(root_ / "bin/notes"), "QV_Commons_iOS", "bundle"),
            root_ / "bin/QV_Commons_iOS.bundle");
}

TEST_F(ResourceSearchTest, TakesTheLibrarysOwnLayoutsLast) {
  const std::string ownLayout = ":/qv_commons/QV_AgeGateViewController.ui";
  EXPECT_EQ(findLayout("QV_AgeGateViewController", nullptr, ""), ownLayout);
  LibraryBundle empty(root_);
  EXPECT_EQ(findLayout("QV_AgeGateViewController", &empty, ""), ownLayout);
  const std::string onDisk = make("QV_AgeGateViewController.ui");
  EXPECT_EQ(findLayout("QV_AgeGateViewController", &empty, ""), onDisk);
}

TEST_F(ResourceSearchTest, HasTheSameLayoutsInsideTheLibraryAsInItsBundle) {
  for (const std::string name : {"QV_AgeGateViewController", "QV_AgeGateRefusedViewController"}) {
    QFile inside(QString::fromStdString(findLayout(name, nullptr, "")));
    QFile onDisk(
        QString::fromStdString(QV_COMMONS_RESOURCES "/QV_Commons_iOS.bundle/" + name + ".ui"));
    ASSERT_TRUE(inside.open(QIODevice::ReadOnly) && onDisk.open(QIODevice::ReadOnly)) << name;
    EXPECT_EQ(inside.readAll(), onDisk.readAll());
  }
}

TEST(ResourceSearchDeathTest, NamesEveryPlaceThatWasSearchedForALayout) {
  const std::string own = fs::read_symlink("/proc/self/exe").parent_path();
  EXPECT_DEATH(findLayout("Other", nullptr, ""),
               "the layout Other.ui is missing. DesktopSettings::resourceDirectory is \"\"; "
               "searched:\n  " +
                   own + "/QV_Commons_iOS.bundle/Other.ui\n  " + own +
                   "/share/qv_commons/QV_Commons_iOS.bundle/Other.ui\n(.*\n)+  the library itself");
}

TEST(FileOfThisCode, IsTheProgramThatRuns) {
  EXPECT_EQ(fileOfThisCode(), fs::read_symlink("/proc/self/exe"));
}

TEST_F(AgeGateTest, FindsTheResourceBundleInTheBuildTree) {
  const auto bundle = QV_BundleFileHelper::getQVCommonsResourceBundle();
  ASSERT_NE(bundle, nullptr);
  EXPECT_TRUE(bundle->URLForResource("QV_AgeGateViewController", "ui"));
  EXPECT_TRUE(bundle->URLForResource("QV_AgeGateRefusedViewController", "ui"));
  EXPECT_FALSE(bundle->URLForResource("QV_AgeGateViewController", "json"));
  EXPECT_TRUE(errors_.empty());
}

TEST_F(AgeGateTest, ReadsTheHostsJsonFilesAndNoOthers) {
  const fs::path bundle = temporary_.filePath("bundle").toStdString();
  const auto write = [](const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  };
  write(bundle / "config.json", " {\r\n \"a\": 1 }\n\n");
  write(bundle / "broken.json", "\xff\xfe");
  write(bundle.parent_path() / "x.json", "outside");
  write(bundle / "large.json", std::string(100'000'000, ' '));
  EXPECT_EQ(QV_BundleFileHelper::loadJsonFromBundle("config"), " {\r\n \"a\": 1 }\n\n");
  testing::internal::CaptureStdout();
  EXPECT_EQ(QV_BundleFileHelper::loadJsonFromBundle("config.json"), std::nullopt);
  EXPECT_EQ(QV_BundleFileHelper::loadJsonFromBundle("missing"), std::nullopt);
  EXPECT_EQ(QV_BundleFileHelper::loadJsonFromBundle("../x"), std::nullopt);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  testing::internal::CaptureStdout();
  EXPECT_EQ(QV_BundleFileHelper::loadJsonFromBundle("broken"), std::nullopt);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "QV_BundleFileHelper - Error!! Unable to parse  broken.json\n");
  EXPECT_EQ(QV_BundleFileHelper::loadJsonFromBundle("large").value().size(), 100'000'000U);
}

}  // namespace
}  // namespace qv_commons::desktop
