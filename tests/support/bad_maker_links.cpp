// Compiled with a maker's host that is none.
#include <gtest/gtest.h>

#include "qv_commons/support/links.h"

namespace qv_commons {
namespace {

TEST(BadMakerLinks, AreAFatalErrorThatNamesTheSite) {
  constexpr const char* kReason = "QV_Links: https://maker site is not the start of a URL";
  EXPECT_DEATH(QV_Links::privacyPolicy(), kReason);
  EXPECT_DEATH(QV_Links::termsOfService(), kReason);
}

}  // namespace
}  // namespace qv_commons
