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

TEST(Links, HaveASchemeAHostAndAPathAlone) {
  const URL privacy = QV_Links::privacyPolicy();
  EXPECT_EQ(privacy.scheme(), "https");
  EXPECT_EQ(privacy.host(), MAKER_HOST);
  EXPECT_EQ(privacy.path(), "/privacy/");
  const URL terms = QV_Links::termsOfService();
  EXPECT_EQ(terms.scheme(), "https");
  EXPECT_EQ(terms.host(), MAKER_HOST);
  EXPECT_EQ(terms.path(), "/terms-of-service/");
  for (const URL& link : {privacy, terms}) {
    EXPECT_EQ(link.userinfo(), std::nullopt);
    EXPECT_EQ(link.port(), std::nullopt);
    EXPECT_EQ(link.query(), std::nullopt);
    EXPECT_EQ(link.fragment(), std::nullopt);
  }
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
