// Conformance of Bundles and Bundle.
#pragma once

#include "qv_commons/app_info/bundle_file_helper.h"

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class BundleConformance : public Suite {};

TEST_P(BundleConformance, HasTheTextsOfItsInfoDictionary) {
  adapter().useMainBundle({.texts = {{"text", " 2.4.1\n"}, {"empty", ""}, {"accents", "Grüße 📮"}}});
  const Bundle& bundle = platform().bundles.mainBundle();
  EXPECT_EQ(bundle.textForInfoDictionaryKey("text"), " 2.4.1\n");
  EXPECT_EQ(bundle.textForInfoDictionaryKey("empty"), "");
  EXPECT_EQ(bundle.textForInfoDictionaryKey("accents"), "Grüße 📮");
}

TEST_P(BundleConformance, HasNoTextUnderANumbersKeyOrAnAbsentOne) {
  adapter().useMainBundle({.texts = {{"CFBundleName", "Notes"}}, .numbers = {{"number", 317}}});
  const Bundle& bundle = platform().bundles.mainBundle();
  EXPECT_EQ(bundle.textForInfoDictionaryKey("number"), std::nullopt);
  EXPECT_EQ(bundle.textForInfoDictionaryKey("CFBundleDisplayName"), std::nullopt);
  EXPECT_EQ(bundle.textForInfoDictionaryKey(""), std::nullopt);
}

TEST_P(BundleConformance, HasItsIdentifier) {
  adapter().useMainBundle({.identifier = "com.example.notes"});
  EXPECT_EQ(platform().bundles.mainBundle().bundleIdentifier(), "com.example.notes");
}

TEST_P(BundleConformance, MayHaveNoIdentifier) {
  adapter().useMainBundle({});
  EXPECT_EQ(platform().bundles.mainBundle().bundleIdentifier(), std::nullopt);
}

TEST_P(BundleConformance, NamesAReceiptLocationWhoseFileNeedNotExist) {
  adapter().useMainBundle({.namesReceiptLocation = true});
  const std::optional<FileLocation> location = platform().bundles.mainBundle().appStoreReceiptURL();
  ASSERT_TRUE(location);
  EXPECT_FALSE(platform().bundles.read(*location).bytes);
}

TEST_P(BundleConformance, MayNameNoReceiptLocation) {
  adapter().useMainBundle({});
  EXPECT_EQ(platform().bundles.mainBundle().appStoreReceiptURL(), std::nullopt);
}

TEST_P(BundleConformance, IsTheSameObjectAtEveryCall) {
  EXPECT_EQ(&platform().bundles.mainBundle(), &platform().bundles.mainBundle());
  EXPECT_EQ(&platform().bundles.libraryBundle(), &platform().bundles.libraryBundle());
}

class BundleResourcesConformance : public Suite {
 protected:
  const Bundle& mainBundle() { return platform().bundles.mainBundle(); }
};

TEST_P(BundleResourcesConformance, FindAndReadAFileOfTheMainBundle) {
  adapter().addToMainBundle("words.json", "{ }\r\n");
  const auto location = mainBundle().URLForResource("words", "json");
  ASSERT_TRUE(location);
  EXPECT_EQ(platform().bundles.read(*location).bytes, "{ }\r\n");
}

TEST_P(BundleResourcesConformance, FindNothingUnderAnotherName) {
  adapter().addToMainBundle("words.json", "{}");
  EXPECT_EQ(mainBundle().URLForResource("words", "txt"), std::nullopt);
  EXPECT_EQ(mainBundle().URLForResource("words.json", "json"), std::nullopt);
  EXPECT_EQ(mainBundle().URLForResource("word", "json"), std::nullopt);
}

TEST_P(BundleResourcesConformance, KeepTheAppsFilesAndTheLibrarysApart) {
  adapter().addToMainBundle("words.json", "{}");
  EXPECT_EQ(platform().bundles.libraryBundle().URLForResource("words", "json"), std::nullopt);
  EXPECT_EQ(mainBundle().URLForResource("QV_Commons_iOS", "bundle"), std::nullopt);
}

TEST_P(BundleResourcesConformance, FindAndOpenTheLibrarysResourceBundle) {
  EXPECT_NE(resourceBundleOf(platform().bundles), nullptr);
}

TEST_P(BundleResourcesConformance, OpenNothingWhereThereIsNoBundle) {
  EXPECT_EQ(platform().bundles.bundleWithURL("/nowhere/QV_Commons_iOS.bundle"), nullptr);
}

class FilesConformance : public Suite {};

TEST_P(FilesConformance, ReadsEveryByte) {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes.push_back(static_cast<char>(value));
  const FileContents contents = platform().bundles.read(adapter().makeFile(bytes));
  EXPECT_EQ(contents.bytes, bytes);
  EXPECT_EQ(contents.errorDescription, "");
}

TEST_P(FilesConformance, ReadsAnEmptyFile) {
  const FileContents contents = platform().bundles.read(adapter().makeFile(""));
  EXPECT_EQ(contents.bytes, "");
  EXPECT_EQ(contents.errorDescription, "");
}

TEST_P(FilesConformance, SaysWhyAMissingFileCannotBeRead) {
  const FileContents contents = platform().bundles.read(adapter().missingFile());
  EXPECT_EQ(contents.bytes, std::nullopt);
  EXPECT_NE(contents.errorDescription, "");
}

TEST_P(FilesConformance, SaysWhyAFolderCannotBeRead) {
  const FileContents contents = platform().bundles.read(adapter().makeFolder());
  EXPECT_EQ(contents.bytes, std::nullopt);
  EXPECT_NE(contents.errorDescription, "");
}

}  // namespace qv_commons::conformance
