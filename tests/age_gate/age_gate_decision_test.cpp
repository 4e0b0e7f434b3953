#include "qv_commons/age_gate/age_gate_decision.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qv_commons/platform/memory/memory_user_defaults.h"

namespace qv_commons {
namespace {

using enum AgeGateStartDecision;
using testing::ElementsAre;

TEST(AgeGateDecision, FollowsTheTwoFlags) {
  EXPECT_EQ(decideAgeGateStart(false, false), presentAgeGate);
  EXPECT_EQ(decideAgeGateStart(true, false), callCompletion);
  EXPECT_EQ(decideAgeGateStart(true, true), presentRefused);
}

TEST(AgeGateDecision, TakesNoNoticeOfTheBlockedFlagWhereTheGateWasNotShown) {
  EXPECT_EQ(decideAgeGateStart(false, true), presentAgeGate);
}

class ReadingTheFlags : public testing::Test {
 protected:
  memory::Record record;
  memory::MemoryUserDefaults userDefaults{record};
};

TEST_F(ReadingTheFlags, ReadsOnlyTheFirstWhereItIsAbsent) {
  EXPECT_EQ(decideAgeGateStart(userDefaults), presentAgeGate);
  EXPECT_THAT(record.lines(), ElementsAre("userDefaults.boolForKey QV_AgeGate_Shown"));
}

TEST_F(ReadingTheFlags, ReadsOnlyTheFirstWhereItIsFalseAndTheOtherIsTrue) {
  userDefaults.values = {{"QV_AgeGate_Shown", false}, {"QV_AgeGate_Blocked", true}};
  EXPECT_EQ(decideAgeGateStart(userDefaults), presentAgeGate);
  EXPECT_THAT(record.lines(), ElementsAre("userDefaults.boolForKey QV_AgeGate_Shown"));
}

TEST_F(ReadingTheFlags, TakesAnAbsentSecondForFalse) {
  userDefaults.values = {{"QV_AgeGate_Shown", true}};
  EXPECT_EQ(decideAgeGateStart(userDefaults), callCompletion);
  EXPECT_THAT(record.lines(), ElementsAre("userDefaults.boolForKey QV_AgeGate_Shown",
                                          "userDefaults.boolForKey QV_AgeGate_Blocked"));
}

TEST_F(ReadingTheFlags, ReadsBothInOrderWhereTheFirstIsTrue) {
  userDefaults.values = {{"QV_AgeGate_Shown", true}, {"QV_AgeGate_Blocked", true}};
  EXPECT_EQ(decideAgeGateStart(userDefaults), presentRefused);
  EXPECT_THAT(record.lines(), ElementsAre("userDefaults.boolForKey QV_AgeGate_Shown",
                                          "userDefaults.boolForKey QV_AgeGate_Blocked"));
}

}  // namespace
}  // namespace qv_commons
