// What user defaults of every adapter hold to. `Adapter` has an empty store in `userDefaults()`.
#pragma once

#include <gtest/gtest.h>

#include "qv_commons/platform/user_defaults.h"

namespace qv_commons::test {

template <class Adapter>
class UserDefaultsConformance : public testing::Test {
 protected:
  UserDefaults& userDefaults() { return adapter_.userDefaults(); }

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

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsConformance, ReadFalseWhatWasNeverWritten,
                            ReadWhatWasWrittenAtOnce, KeepKeysApart, TakeAnyTextForAKey);

}  // namespace qv_commons::test
