// What bundles of every adapter hold to where files are looked for. `Adapter` has `bundles()` and
// `files()`, and `addToMainBundle(name, bytes)` for a file of the main bundle.
#pragma once

#include <gtest/gtest.h>

#include "qv_commons/app_info/resource_bundle.h"
#include "qv_commons/platform/bundle.h"
#include "qv_commons/platform/files.h"

namespace qv_commons::test {

template <class Adapter>
class BundleResourcesConformance : public testing::Test {
 protected:
  const Bundle& mainBundle() { return adapter.bundles().mainBundle(); }

  Adapter adapter;
};

TYPED_TEST_SUITE_P(BundleResourcesConformance);

TYPED_TEST_P(BundleResourcesConformance, FindAndReadAFileOfTheMainBundle) {
  this->adapter.addToMainBundle("words.json", "{ }\r\n");
  const auto location = this->mainBundle().URLForResource("words", "json");
  ASSERT_TRUE(location);
  EXPECT_EQ(this->adapter.files().read(*location).bytes, "{ }\r\n");
}

TYPED_TEST_P(BundleResourcesConformance, FindNothingUnderAnotherName) {
  this->adapter.addToMainBundle("words.json", "{}");
  EXPECT_EQ(this->mainBundle().URLForResource("words", "txt"), std::nullopt);
  EXPECT_EQ(this->mainBundle().URLForResource("words.json", "json"), std::nullopt);
  EXPECT_EQ(this->mainBundle().URLForResource("word", "json"), std::nullopt);
}

TYPED_TEST_P(BundleResourcesConformance, KeepTheAppsFilesAndTheLibrarysApart) {
  this->adapter.addToMainBundle("words.json", "{}");
  EXPECT_EQ(this->adapter.bundles().libraryBundle().URLForResource("words", "json"), std::nullopt);
  EXPECT_EQ(this->mainBundle().URLForResource("QV_Commons_iOS", "bundle"), std::nullopt);
}

TYPED_TEST_P(BundleResourcesConformance, FindAndOpenTheLibrarysResourceBundle) {
  EXPECT_NE(resourceBundleOf(this->adapter.bundles()), nullptr);
}

TYPED_TEST_P(BundleResourcesConformance, OpenNothingWhereThereIsNoBundle) {
  EXPECT_EQ(this->adapter.bundles().bundleWithURL("/nowhere/QV_Commons_iOS.bundle"), nullptr);
}

TYPED_TEST_P(BundleResourcesConformance, AreTheSameObjectsAtEveryCall) {
  EXPECT_EQ(&this->mainBundle(), &this->mainBundle());
  EXPECT_EQ(&this->adapter.bundles().libraryBundle(), &this->adapter.bundles().libraryBundle());
}

REGISTER_TYPED_TEST_SUITE_P(BundleResourcesConformance, FindAndReadAFileOfTheMainBundle,
                            FindNothingUnderAnotherName, KeepTheAppsFilesAndTheLibrarysApart,
                            FindAndOpenTheLibrarysResourceBundle, OpenNothingWhereThereIsNoBundle,
                            AreTheSameObjectsAtEveryCall);

}  // namespace qv_commons::test
