// Conformance of Bundles and Bundle.
#pragma once

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class BundleConformance : public Suite {};

TEST_P(BundleConformance, GivesEachValueTheTypeItHas) {
  adapter().useMainBundle({.info = {{"text", std::string("2.4.1")},
                                    {"empty", std::string()},
                                    {"accents", std::string("Grüße 📮")},
                                    {"whole", std::int64_t{317}},
                                    {"negative", std::int64_t{-9}},
                                    {"fraction", 1.5},
                                    {"yes", true},
                                    {"no", false},
                                    {"other", OtherObject{}}}});
  const Bundle& bundle = platform().bundles.mainBundle();
  using Value = InfoDictionaryValue;
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("text"), Value(std::string("2.4.1")));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("empty"), Value(std::string()));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("accents"), Value(std::string("Grüße 📮")));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("whole"), Value(std::int64_t{317}));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("negative"), Value(std::int64_t{-9}));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("fraction"), Value(1.5));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("yes"), Value(true));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("no"), Value(false));
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("other"), Value(OtherObject{}));
}

TEST_P(BundleConformance, HasNothingUnderAKeyThatIsAbsent) {
  adapter().useMainBundle({.info = {{"CFBundleName", std::string("Notes")}}});
  const Bundle& bundle = platform().bundles.mainBundle();
  EXPECT_EQ(bundle.objectForInfoDictionaryKey("CFBundleDisplayName"), InfoDictionaryValue());
  EXPECT_EQ(bundle.objectForInfoDictionaryKey(""), InfoDictionaryValue());
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
  EXPECT_FALSE(platform().files.read(*location).bytes);
}

TEST_P(BundleConformance, MayNameNoReceiptLocation) {
  adapter().useMainBundle({});
  EXPECT_EQ(platform().bundles.mainBundle().appStoreReceiptURL(), std::nullopt);
}

TEST_P(BundleConformance, IsTheSameObjectAtEveryCall) {
  EXPECT_EQ(&platform().bundles.mainBundle(), &platform().bundles.mainBundle());
}

}  // namespace qv_commons::conformance
