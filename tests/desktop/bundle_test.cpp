#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "qv_commons/app_info/app_info_helper.h"
#include "qv_commons/platform/desktop/desktop_bundle.h"

#include "tests/desktop/desktop_driver.h"

namespace qv_commons::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string plist(const std::string& elements) {
  return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)" + elements +
         "</dict></plist>";
}

class BundleFolders : public testing::Test {
 protected:
  // What the three texts of the app say for an Info.plist of those bytes.
  std::vector<std::string> textsFor(const std::string& infoPlist) {
    folder_.write("bundle/Info.plist", infoPlist);
    return textsOf(folder_.path("bundle"));
  }

  std::vector<std::string> textsOf(const std::string& directory) {
    const DesktopPlatform desktop({.bundleDirectory = directory, .onError = [this](std::string e) {
                                     errors_.push_back(std::move(e));
                                   }});
    const ScopedPlatform scope(desktop.platform());
    return {QV_AppInfoHelper::appVersion(), QV_AppInfoHelper::appId(), QV_AppInfoHelper::appName()};
  }

  TestFolder folder_;
  std::vector<std::string> errors_;
};

TEST_F(BundleFolders, ReadXml) {
  EXPECT_THAT(textsFor(plist("<key>CFBundleIdentifier</key><string>com.example.notes</string>"
                             "<key>CFBundleShortVersionString</key><string>2.4.1</string>"
                             "<key>CFBundleVersion</key><string>317</string>"
                             "<key>CFBundleDisplayName</key><string>N&amp;tes 📮</string>")),
              ElementsAre("2.4.1(317)", "com.example.notes", "N&tes 📮"));
  EXPECT_THAT(errors_, IsEmpty());
}

// {"CFBundleVersion": "317"} in binary: an offset table of three objects, then the trailer.
TEST_F(BundleFolders, ReadBinary) {
  using namespace std::string_literals;
  const std::string bytes = "bplist00\xd1\x01\x02\x5f\x10\x0f"s + "CFBundleVersion" + "\x53" +
                            "317" + "\x08\x0b\x1d"s + std::string(6, '\0') + "\x01\x01"s +
                            std::string(7, '\0') + "\x03"s + std::string(8, '\0') +
                            std::string(7, '\0') + "\x21"s;
  EXPECT_THAT(textsFor(bytes), ElementsAre("(317)", "", ""));
  EXPECT_THAT(errors_, IsEmpty());
}

// The text under the key "k", if the list is one and has a text there.
std::optional<std::string> textIn(const std::optional<InfoTexts>& info) {
  return info && info->contains("k") ? std::optional(info->at("k")) : std::nullopt;
}

std::optional<std::string> textInXml(const std::string& element) {
  return textIn(parseInfoTexts(plist("<key>k</key>" + element)));
}

TEST(PropertyList, HoldsTexts) {
  EXPECT_EQ(textInXml("<string>a<![CDATA[<b>]]>&#x1f4ee;</string>"), "a<b>📮");
  EXPECT_EQ(textInXml("<string/>"), "");
}

TEST(PropertyList, SkipsWhatIsNoText) {
  for (const char* other :
       {"<array><string>a</string></array>", "<dict><key>k</key><string>a</string></dict>",
        "<data>AA==</data>", "<integer>317</integer>", "<integer>x</integer>", "<real>1.5</real>",
        "<true/>", "<false/>", "<date>2020-01-01T00:00:00Z</date>"}) {
    const auto info = parseInfoTexts(
        plist("<key>k</key>" + std::string(other) + "<key>next</key><string>b</string>"));
    ASSERT_TRUE(info) << other;
    EXPECT_EQ(*info, (InfoTexts{{"next", "b"}})) << other;
  }
}

TEST(PropertyList, TakesTheLastValueOfAKey) {
  EXPECT_EQ(textInXml("<string>a</string><key>k</key><string>b</string>"), "b");
  EXPECT_EQ(textInXml("<string>a</string><key>k</key><integer>1</integer>"), std::nullopt);
}

// A binary list of `objects`, whose indices and places are bytes, the first object on top.
std::string binaryList(const std::vector<std::string>& objects) {
  std::string bytes = "bplist00";
  std::string places;
  for (const std::string& object : objects) {
    places += static_cast<char>(bytes.size());
    bytes += object;
  }
  const auto table = static_cast<char>(bytes.size());
  const auto count = static_cast<char>(objects.size());
  using namespace std::string_literals;
  return bytes + places + "\0\0\0\0\0\0\1\1"s + std::string(7, '\0') + count +
         std::string(15, '\0') + table;
}

std::optional<std::string> textInBinary(const std::string& object) {
  return textIn(parseInfoTexts(binaryList({std::string("\xd1\x01\x02"), "\x51k", object})));
}

TEST(PropertyList, HoldsTextsInBinary) {
  using namespace std::string_literals;
  EXPECT_EQ(textInBinary("\x53"s + "abc"), "abc");
  EXPECT_EQ(textInBinary("\x50"s), "");
  EXPECT_EQ(textInBinary("\x63\x00\xfc\xd8\x3d\xdc\xee"s), "ü📮");
  EXPECT_EQ(textInBinary("\x5f\x10\x10"s + "0123456789abcdef"), "0123456789abcdef");
}

TEST(PropertyList, SkipsWhatIsNoTextInBinary) {
  using namespace std::string_literals;
  for (const std::string& other :
       {"\x10\xff"s, "\x13"s + std::string(8, '\xff'), "\x14"s + std::string(15, '\0') + "\x07",
        "\x23\x3f\xf8\0\0\0\0\0\0"s, "\x22\x3f\xc0\0\0"s, "\x09"s, "\x08"s,
        "\xa1\x02"s /* holds itself */}) {
    const auto info = parseInfoTexts(
        binaryList({"\xd2\x01\x02\x03\x04"s, "\x51k"s, "\x51n"s, other, "\x51"s + "b"}));
    ASSERT_TRUE(info);
    EXPECT_EQ(*info, (InfoTexts{{"n", "b"}}));
  }
}

TEST(PropertyList, IsNoneWhereItNamesMoreThanThereIsInBinary) {
  using namespace std::string_literals;
  for (const std::string& value :
       {"\x5f\x10\xc8"s /* bytes */, "\x6f\x10\x64"s /* units */,
        "\x5f\x14"s /* a size of 16 bytes */, "\x5f\x51"s /* a text for a size */}) {
    EXPECT_FALSE(parseInfoTexts(binaryList({"\xd1\x01\x02", "\x51k", value})));
  }
  EXPECT_FALSE(parseInfoTexts(binaryList({"\xdf\x10\xf0"})));  // entries
}

TEST(PropertyList, OfAnyBytesNeverEndsTheHost) {
  using namespace std::string_literals;
  std::string nested;
  for (int i = 0; i < 200'000; ++i) nested += "<array>";
  EXPECT_EQ(parseInfoTexts("<plist><dict><key>k</key>" + nested), std::nullopt);
  std::string closed = nested;
  for (int i = 0; i < 200'000; ++i) closed += "</array>";
  EXPECT_TRUE(parseInfoTexts("<plist><dict><key>k</key>" + closed + "</dict></plist>"));
  const std::optional<InfoTexts> withNul =
      parseInfoTexts(binaryList({"\xd1\x01\x02", "\x53k\0k"s, "\x51v"}));
  ASSERT_TRUE(withNul);
  EXPECT_TRUE(withNul->contains("k\0k"s));
  const std::string good = binaryList({"\xd1\x01\x02", "\x51k", "\x09"});
  ASSERT_TRUE(parseInfoTexts(good));
  for (std::size_t place = 0; place < good.size(); ++place) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string bad = good;
      bad[place] = static_cast<char>(byte);
      parseInfoTexts(bad);
      parseInfoTexts(bad.substr(0, place));
    }
  }
}

TEST_F(BundleFolders, TakeNumbersForNoTexts) {
  EXPECT_THAT(textsFor(plist("<key>CFBundleShortVersionString</key><string>1.0</string>"
                             "<key>CFBundleVersion</key><integer>1</integer>"
                             "<key>CFBundleIdentifier</key><integer>1</integer>")),
              ElementsAre("1.0()", "", ""));
}

TEST_F(BundleFolders, HaveNoTextsWhereTheFileIsDamaged) {
  EXPECT_FALSE(parseInfoTexts(plist("<string>a value without a key</string>")));
  const std::string good = plist("<key>CFBundleVersion</key><string>317</string>");
  for (const std::string& bad :
       {std::string(), std::string("hello"), std::string("bplist00"),
        std::string("bplist00\xff\xff\xff\xff", 12), std::string(64, '\0'), good.substr(0, 90),
        std::string("<plist version=\"1.0\"><array><string>317</string></array></plist>"),
        std::string("<plist version=\"1.0\"><string>317</string></plist>")}) {
    errors_.clear();
    EXPECT_THAT(textsFor(bad), ElementsAre("()", "", "")) << bad;
    EXPECT_THAT(errors_, ElementsAre(folder_.path("bundle/Info.plist") +
                                     ": not a property list with a dictionary"))
        << bad;
  }
}

TEST_F(BundleFolders, HaveNoTextsWhereTheFileIsMissing) {
  EXPECT_THAT(textsOf(folder_.path("none")), ElementsAre("()", "", ""));
  EXPECT_THAT(errors_, ElementsAre(folder_.path("none/Info.plist: No such file or directory")));
}

TEST_F(BundleFolders, HaveNoTextsWithoutAFolder) {
  EXPECT_THAT(textsOf(""), ElementsAre("()", "", ""));
  EXPECT_THAT(errors_, IsEmpty());
}

TEST_F(BundleFolders, MayBeFoldersOfAnyName) {
  for (const char* name : {"Ümläut 📮", "a b'c\"d", "not\xffutf-8", "line\nbreak"}) {
    const std::string directory = folder_.path(name);
    ASSERT_EQ(::mkdir(directory.c_str(), 0700), 0);
    std::ofstream(directory + "/Info.plist")
        << plist("<key>CFBundleVersion</key><string>317</string>");
    EXPECT_THAT(textsOf(directory), ElementsAre("(317)", "", "")) << name;
  }
}

TEST_F(BundleFolders, ExpectTheReceiptInTheFolderStoreKit) {
  folder_.write("bundle/Info.plist", plist(""));
  const DesktopPlatform desktop({.bundleDirectory = folder_.path("bundle")});
  const Bundle& bundle = desktop.platform().bundles.mainBundle();
  EXPECT_EQ(bundle.appStoreReceiptURL(), std::nullopt);
  folder_.write("bundle/StoreKit/other", "");
  EXPECT_EQ(bundle.appStoreReceiptURL(), folder_.path("bundle/StoreKit/receipt"));
}

}  // namespace
}  // namespace qv_commons::desktop
