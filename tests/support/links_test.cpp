#include "qv_commons/support/links.h"

#include <gtest/gtest.h>

#include "tests/support_code/allocation_counter.h"

namespace qv_commons {
namespace {

// Compiled with MAKER_HOST set to the host that is expected.
TEST(Links, AreTheTwoDocumentsOnTheMakersSite) {
  EXPECT_EQ(QV_Links::privacyPolicy().text(), "https://" MAKER_HOST "/privacy/");
  EXPECT_EQ(QV_Links::termsOfService().text(), "https://" MAKER_HOST "/terms-of-service/");
}

TEST(Links, AreEqualAtEveryCall) {
  EXPECT_EQ(QV_Links::privacyPolicy(), QV_Links::privacyPolicy());
  EXPECT_EQ(QV_Links::termsOfService(), QV_Links::termsOfService());
}

TEST(Links, AllocateTheirTextAlone) {
  test::AllocationCounter counter;
  const URL privacy = QV_Links::privacyPolicy();
  EXPECT_EQ(counter.calls(), 1);
  const URL terms = QV_Links::termsOfService();
  EXPECT_EQ(counter.calls(), 2);
}

}  // namespace
}  // namespace qv_commons
