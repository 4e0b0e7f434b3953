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

InfoDictionaryValue valueIn(const std::string& elements) {
  const std::optional<InfoDictionary> info = parseInfoDictionary(plist(elements));
  return info && info->contains("k") ? info->at("k") : OtherObject{};
}

TEST(PropertyList, HoldsValuesOfEachKind) {
  EXPECT_EQ(
      std::get<std::string>(valueIn("<key>k</key><string>a<![CDATA[<b>]]>&#x1f4ee;</string>")),
      "a<b>📮");
  EXPECT_EQ(std::get<std::string>(valueIn("<key>k</key><string/>")), "");
  const std::pair<const char*, std::int64_t> integers[] = {
      {"317", 317}, {" -5 ", -5}, {"0x10", 16}, {"010", 10}, {"18446744073709551615", -1}};
  for (const auto& [text, number] : integers) {
    EXPECT_EQ(
        std::get<std::int64_t>(valueIn("<key>k</key><integer>" + std::string(text) + "</integer>")),
        number);
  }
  EXPECT_EQ(std::get<double>(valueIn("<key>k</key><real>1.5</real>")), 1.5);
  EXPECT_TRUE(std::get<bool>(valueIn("<key>k</key><true/>")));
  EXPECT_FALSE(std::get<bool>(valueIn("<key>k</key><false/>")));
  for (const char* other : {"<array><string>a</string></array>", "<dict/>", "<data>AA==</data>",
                            "<integer>x</integer>", "<date>2020-01-01T00:00:00Z</date>"}) {
    EXPECT_TRUE(std::holds_alternative<OtherObject>(valueIn("<key>k</key>" + std::string(other))));
  }
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

InfoDictionaryValue valueInBinary(const std::string& object) {
  const std::optional<InfoDictionary> info =
      parseInfoDictionary(binaryList({std::string("\xd1\x01\x02"), "\x51k", object}));
  return info && info->contains("k") ? info->at("k") : OtherObject{};
}

TEST(PropertyList, HoldsValuesOfEachKindInBinary) {
  using namespace std::string_literals;
  EXPECT_EQ(std::get<std::string>(valueInBinary("\x53"s + "abc")), "abc");
  EXPECT_EQ(std::get<std::string>(valueInBinary("\x63\x00\xfc\xd8\x3d\xdc\xee"s)), "ü📮");
  EXPECT_EQ(std::get<std::string>(valueInBinary("\x5f\x10\x10"s + "0123456789abcdef")),
            "0123456789abcdef");
  EXPECT_EQ(std::get<std::int64_t>(valueInBinary("\x10\xff"s)), 255);
  EXPECT_EQ(std::get<std::int64_t>(valueInBinary("\x13"s + std::string(8, '\xff'))), -1);
  EXPECT_EQ(std::get<std::int64_t>(valueInBinary("\x14"s + std::string(15, '\0') + "\x07")), 7);
  EXPECT_EQ(std::get<double>(valueInBinary("\x23\x3f\xf8\0\0\0\0\0\0"s)), 1.5);
  EXPECT_EQ(std::get<double>(valueInBinary("\x22\x3f\xc0\0\0"s)), 1.5);
  EXPECT_TRUE(std::get<bool>(valueInBinary("\x09")));
  EXPECT_FALSE(std::get<bool>(valueInBinary("\x08")));
  EXPECT_TRUE(std::holds_alternative<OtherObject>(valueInBinary("\xa1\x02")));  // holds itself
}

TEST(PropertyList, OfAnyBytesNeverEndsTheHost) {
  using namespace std::string_literals;
  std::string nested;
  for (int i = 0; i < 200'000; ++i) nested += "<array>";
  EXPECT_EQ(parseInfoDictionary("<plist><dict><key>k</key>" + nested), std::nullopt);
  std::string closed = nested;
  for (int i = 0; i < 200'000; ++i) closed += "</array>";
  EXPECT_TRUE(parseInfoDictionary("<plist><dict><key>k</key>" + closed + "</dict></plist>"));
  const std::optional<InfoDictionary> withNul =
      parseInfoDictionary(binaryList({"\xd1\x01\x02", "\x53k\0k"s, "\x09"}));
  ASSERT_TRUE(withNul);
  EXPECT_TRUE(withNul->contains("k\0k"s));
  const std::string good = binaryList({"\xd1\x01\x02", "\x51k", "\x09"});
  ASSERT_TRUE(parseInfoDictionary(good));
  for (std::size_t place = 0; place < good.size(); ++place) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string bad = good;
      bad[place] = static_cast<char>(byte);
      parseInfoDictionary(bad);
      parseInfoDictionary(bad.substr(0, place));
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
