// What user defaults of every adapter hold to. `Adapter` has an empty store in `userDefaults()`,
// and says with `nextStartReads(key)` what the app would read after being killed now.
#pragma once

#include <gtest/gtest.h>

#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::test {

template <class Adapter>
class UserDefaultsConformance : public testing::Test {
 protected:
  UserDefaults& userDefaults() { return adapter_.userDefaults(); }
  bool nextStartReads(const char* key) { return adapter_.nextStartReads(key); }

 private:
  Adapter adapter_;
};

TYPED_TEST_SUITE_P(UserDefaultsConformance);

TYPED_TEST_P(UserDefaultsConformance, ReadFalseWhatWasNeverWritten) {
  EXPECT_FALSE(this->userDefaults().boolForKey("QV_AgeGate_Shown"));
  EXPECT_FALSE(this->userDefaults().boolForKey(""));
}

TYPED_TEST_P(UserDefaultsConformance, ReadWhatWasWrittenAtOnce) {
  this->userDefaults().setBool(true, "QV_AgeGate_Shown");
  EXPECT_TRUE(this->userDefaults().boolForKey("QV_AgeGate_Shown"));
  this->userDefaults().setBool(false, "QV_AgeGate_Shown");
  EXPECT_FALSE(this->userDefaults().boolForKey("QV_AgeGate_Shown"));
}

TYPED_TEST_P(UserDefaultsConformance, KeepKeysApart) {
  this->userDefaults().setBool(true, "QV_AgeGate_Shown");
  EXPECT_FALSE(this->userDefaults().boolForKey("QV_AgeGate_Blocked"));
  EXPECT_FALSE(this->userDefaults().boolForKey("qv_agegate_shown"));
  EXPECT_FALSE(this->userDefaults().boolForKey("QV_AgeGate_Show"));
}

TYPED_TEST_P(UserDefaultsConformance, TakeAnyTextForAKey) {
  this->userDefaults().setBool(true, "it's \"a\"; key, 鍵 👍");
  EXPECT_TRUE(this->userDefaults().boolForKey("it's \"a\"; key, 鍵 👍"));
}

TYPED_TEST_P(UserDefaultsConformance, OutliveTheAppOnceTheyAreCommitted) {
  this->userDefaults().setBool(true, "QV_AgeGate_Shown");
  this->userDefaults().setBool(true, "QV_AgeGate_Blocked");
  this->userDefaults().commit();
  EXPECT_TRUE(this->nextStartReads("QV_AgeGate_Shown"));
  EXPECT_TRUE(this->nextStartReads("QV_AgeGate_Blocked"));
  EXPECT_TRUE(this->userDefaults().boolForKey("QV_AgeGate_Shown"));
}

TYPED_TEST_P(UserDefaultsConformance, OutliveTheAppTogetherOrNotAtAll) {
  this->userDefaults().setBool(true, "QV_AgeGate_Shown");
  this->userDefaults().setBool(true, "QV_AgeGate_Blocked");
  EXPECT_EQ(this->nextStartReads("QV_AgeGate_Shown"), this->nextStartReads("QV_AgeGate_Blocked"));
}

TYPED_TEST_P(UserDefaultsConformance, KeepAnEarlierCommitWhateverIsSetLater) {
  this->userDefaults().setBool(true, "QV_AgeGate_Shown");
  this->userDefaults().commit();
  this->userDefaults().setBool(true, "QV_AgeGate_Blocked");
  EXPECT_TRUE(this->nextStartReads("QV_AgeGate_Shown"));
  this->userDefaults().commit();
  this->userDefaults().commit();  // nothing to persist
  EXPECT_TRUE(this->nextStartReads("QV_AgeGate_Blocked"));
}

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsConformance, ReadFalseWhatWasNeverWritten,
                            ReadWhatWasWrittenAtOnce, KeepKeysApart, TakeAnyTextForAKey,
                            OutliveTheAppOnceTheyAreCommitted, OutliveTheAppTogetherOrNotAtAll,
                            KeepAnEarlierCommitWhateverIsSetLater);

}  // namespace qv_commons::test
