// Conformance of UserDefaults.
#pragma once

#include "qv_commons/platform/user_defaults.h"

#include "tests/conformance/adapter.h"

namespace qv_commons::conformance {

class UserDefaultsConformance : public Suite {
 protected:
  UserDefaults& userDefaults() { return platform().userDefaults; }
  bool nextStartReads(const char* key) { return adapter().nextStartReads(key); }
};

TEST_P(UserDefaultsConformance, ReadFalseWhatWasNeverWritten) {
  EXPECT_FALSE(userDefaults().boolForKey("QV_AgeGate_Shown"));
  EXPECT_FALSE(userDefaults().boolForKey(""));
}

TEST_P(UserDefaultsConformance, ReadWhatWasWrittenAtOnce) {
  userDefaults().setBool(true, "QV_AgeGate_Shown");
  EXPECT_TRUE(userDefaults().boolForKey("QV_AgeGate_Shown"));
  userDefaults().setBool(false, "QV_AgeGate_Shown");
  EXPECT_FALSE(userDefaults().boolForKey("QV_AgeGate_Shown"));
}

TEST_P(UserDefaultsConformance, KeepKeysApart) {
  userDefaults().setBool(true, "QV_AgeGate_Shown");
  EXPECT_FALSE(userDefaults().boolForKey("QV_AgeGate_Blocked"));
  EXPECT_FALSE(userDefaults().boolForKey("qv_agegate_shown"));
  EXPECT_FALSE(userDefaults().boolForKey("QV_AgeGate_Show"));
}

TEST_P(UserDefaultsConformance, TakeAnyTextForAKey) {
  userDefaults().setBool(true, "it's \"a\"; key, 鍵 👍");
  EXPECT_TRUE(userDefaults().boolForKey("it's \"a\"; key, 鍵 👍"));
}

TEST_P(UserDefaultsConformance, OutliveTheAppOnceTheyAreCommitted) {
  userDefaults().setBool(true, "QV_AgeGate_Shown");
  userDefaults().setBool(true, "QV_AgeGate_Blocked");
  userDefaults().commit();
  EXPECT_TRUE(nextStartReads("QV_AgeGate_Shown"));
  EXPECT_TRUE(nextStartReads("QV_AgeGate_Blocked"));
  EXPECT_TRUE(userDefaults().boolForKey("QV_AgeGate_Shown"));
}

TEST_P(UserDefaultsConformance, OutliveTheAppTogetherOrNotAtAll) {
  userDefaults().setBool(true, "QV_AgeGate_Shown");
  userDefaults().setBool(true, "QV_AgeGate_Blocked");
  EXPECT_EQ(nextStartReads("QV_AgeGate_Shown"), nextStartReads("QV_AgeGate_Blocked"));
}

TEST_P(UserDefaultsConformance, KeepAnEarlierCommitWhateverIsSetLater) {
  userDefaults().setBool(true, "QV_AgeGate_Shown");
  userDefaults().commit();
  userDefaults().setBool(true, "QV_AgeGate_Blocked");
  EXPECT_TRUE(nextStartReads("QV_AgeGate_Shown"));
  userDefaults().commit();
  userDefaults().commit();  // nothing to persist
  EXPECT_TRUE(nextStartReads("QV_AgeGate_Blocked"));
}

}  // namespace qv_commons::conformance
