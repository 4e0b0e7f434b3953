#include "qv_commons/app_info/bundle_file_helper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/platform/memory/memory_platform.h"

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class BundleFiles : public testing::Test {
 protected:
  // A file of the main bundle.
  void add(const std::string& name, FileContents contents) {
    platform.mainBundle().resources[name] = "/app/" + name;
    platform.bundles().files["/app/" + name] = std::move(contents);
  }

  static std::optional<std::string> load(std::string_view filename) {
    return QV_BundleFileHelper::loadJsonFromBundle(filename);
  }

  memory::MemoryPlatform platform;
  ScopedPlatform scope{platform.platform()};
};

TEST_F(BundleFiles, GiveTheLibrarysResourceBundle) {
  EXPECT_EQ(QV_BundleFileHelper::getQVCommonsResourceBundle().get(), &platform.resourceBundle());
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("libraryBundle.URLForResource QV_Commons_iOS.bundle",
                          "bundles.bundleWithURL /library/QV_Commons_iOS.bundle"));
}

TEST_F(BundleFiles, LookUpTheResourceBundleAtEachCall) {
  QV_BundleFileHelper::getQVCommonsResourceBundle();
  platform.bundles().library().resources.clear();
  EXPECT_EQ(QV_BundleFileHelper::getQVCommonsResourceBundle(), nullptr);
}

TEST_F(BundleFiles, GiveNoResourceBundleIfTheLibraryHasNone) {
  platform.bundles().library().resources.clear();
  EXPECT_EQ(QV_BundleFileHelper::getQVCommonsResourceBundle(), nullptr);
  EXPECT_THAT(platform.record().lines(),
              ElementsAre("libraryBundle.URLForResource QV_Commons_iOS.bundle"));
}

TEST_F(BundleFiles, GiveNoResourceBundleIfItCannotBeOpened) {
  platform.bundles().openable.clear();
  EXPECT_EQ(QV_BundleFileHelper::getQVCommonsResourceBundle(), nullptr);
  EXPECT_THAT(platform.application().printed, IsEmpty());
}

TEST_F(BundleFiles, DoNotLookForTheResourceBundleInTheApp) {
  platform.bundles().library().resources.clear();
  platform.mainBundle().resources["QV_Commons_iOS.bundle"] = "/library/QV_Commons_iOS.bundle";
  EXPECT_EQ(QV_BundleFileHelper::getQVCommonsResourceBundle(), nullptr);
}

TEST_F(BundleFiles, GiveTheExactTextOfAJsonFile) {
  add("config.json", {" {\r\n\t\"a\" : 1 }\n\n", ""});
  EXPECT_EQ(load("config"), " {\r\n\t\"a\" : 1 }\n\n");
  EXPECT_THAT(platform.record().lines(), ElementsAre("mainBundle.URLForResource config.json",
                                                     "bundles.read /app/config.json"));
}

TEST_F(BundleFiles, GiveTextThatIsNotJson) {
  add("broken.json", {"{ not json", ""});
  add("empty.json", {"", ""});
  add("nul.json", {"\0{}\0"s, ""});
  add("mark.json", {"\xEF\xBB\xBF{}", ""});
  EXPECT_EQ(load("broken"), "{ not json");
  EXPECT_EQ(load("empty"), "");
  EXPECT_EQ(load("nul"), "\0{}\0"s);
  EXPECT_EQ(load("mark"), "\xEF\xBB\xBF{}");
  EXPECT_THAT(platform.application().printed, IsEmpty());
}

TEST_F(BundleFiles, PrintNothingAboutAMissingFile) {
  EXPECT_EQ(load("config"), std::nullopt);
  EXPECT_THAT(platform.record().lines(), ElementsAre("mainBundle.URLForResource config.json"));
}

TEST_F(BundleFiles, DoNotFindJsonThatOnlyTheLibraryHas) {
  for (memory::MemoryBundle* bundle : {&platform.resourceBundle(), &platform.bundles().library()}) {
    bundle->resources["config.json"] = "/library/config.json";
  }
  platform.bundles().files["/library/config.json"] = {"{}", ""};
  EXPECT_EQ(load("config"), std::nullopt);
  EXPECT_THAT(platform.application().printed, IsEmpty());
}

TEST_F(BundleFiles, AddTheExtensionWhateverTheName) {
  add("config.json", {"{}", ""});
  EXPECT_EQ(load("config.json"), std::nullopt);
  EXPECT_THAT(platform.record().lines(), ElementsAre("mainBundle.URLForResource config.json.json"));
  add("config.json.json", {"[]", ""});
  EXPECT_EQ(load("config.json"), "[]");
}

TEST_F(BundleFiles, LeaveTheNameToTheBundlesOwnRule) {
  EXPECT_EQ(load("../x"), std::nullopt);
  EXPECT_EQ(load(""), std::nullopt);
  EXPECT_THAT(platform.record().lines(), ElementsAre("mainBundle.URLForResource ../x.json",
                                                     "mainBundle.URLForResource .json"));
  add("../x.json", {"{}", ""});
  EXPECT_EQ(load("../x"), "{}");
}

TEST_F(BundleFiles, ReportAFileThatIsNotUtf8) {
  add("settings.json", {"{\"name\": \"caf\xE9\"}", ""});
  EXPECT_EQ(load("settings"), std::nullopt);
  EXPECT_THAT(platform.application().printed,
              ElementsAre("QV_BundleFileHelper - Error!! Unable to parse  settings.json"));
}

TEST_F(BundleFiles, ReportAFileThatCannotBeReadWithoutSayingWhy) {
  add("settings.json", {std::nullopt, "permission denied"});
  EXPECT_EQ(load("settings"), std::nullopt);
  EXPECT_THAT(platform.application().printed,
              ElementsAre("QV_BundleFileHelper - Error!! Unable to parse  settings.json"));
}

TEST_F(BundleFiles, ReportAFileThatWasDeletedMeanwhile) {
  platform.mainBundle().resources["gone.json"] = "/app/gone.json";
  EXPECT_EQ(load("gone"), std::nullopt);
  EXPECT_THAT(platform.application().printed,
              ElementsAre("QV_BundleFileHelper - Error!! Unable to parse  gone.json"));
}

TEST_F(BundleFiles, MoveAFileOfAHundredMegabytesWithoutACopy) {
  constexpr std::size_t kSize = 100'000'000;
  std::string text(kSize, 'x');
  text.replace(kSize - 2, 2, "\xC3\xA9");
  add("large.json", {std::move(text), ""});
  const test::AllocationCounter counter;
  const std::optional<std::string> loaded = load("large");
  // One: what the file's reading itself gives.
  EXPECT_LT(counter.peakBytes(), static_cast<std::int64_t>(kSize + kSize / 10));
  ASSERT_TRUE(loaded);
  EXPECT_EQ(loaded->size(), kSize);
  EXPECT_TRUE(loaded->ends_with("x\xC3\xA9"));
}

}  // namespace
}  // namespace qv_commons
