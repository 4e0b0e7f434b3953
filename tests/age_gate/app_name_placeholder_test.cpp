#include "qv_commons/age_gate/app_name_placeholder.h"

#include <gtest/gtest.h>

namespace qv_commons {
namespace {

TEST(AppNamePlaceholder, TakesTheNamesPlace) {
  EXPECT_EQ(fillInAppName("Sorry, [APPNAME] is closed", "Notes"), "Sorry, Notes is closed");
  EXPECT_EQ(fillInAppName("[APPNAME]", "Notes"), "Notes");
}

TEST(AppNamePlaceholder, IsReplacedWhereverItIs) {
  EXPECT_EQ(fillInAppName("[APPNAME] and [APPNAME]", "Notes"), "Notes and Notes");
  EXPECT_EQ(fillInAppName("[APPNAME][APPNAME]", "ab"), "abab");
}

TEST(AppNamePlaceholder, LeavesATextWithoutItAlone) {
  EXPECT_EQ(fillInAppName("Sorry", "Notes"), "Sorry");
  EXPECT_EQ(fillInAppName("", "Notes"), "");
}

TEST(AppNamePlaceholder, IsReplacedByNothingWhereThereIsNoName) {
  EXPECT_EQ(fillInAppName("Sorry, [APPNAME] is closed", ""), "Sorry,  is closed");
}

TEST(AppNamePlaceholder, MustBeSpelledExactlySo) {
  EXPECT_EQ(fillInAppName("[AppName] [APP NAME] [APPNAME [[APPNAME]]", "x"),
            "[AppName] [APP NAME] [APPNAME [x]");
}

TEST(AppNamePlaceholder, IsNotLookedForInTheNameItself) {
  EXPECT_EQ(fillInAppName("a [APPNAME] b", "[APPNAME]"), "a [APPNAME] b");
  EXPECT_EQ(fillInAppName("[APP[APPNAME]NAME]", ""), "[APPNAME]");
}

TEST(AppNamePlaceholder, KeepsOtherCharactersWhole) {
  EXPECT_EQ(fillInAppName("Désolé 👋 [APPNAME]\u0301", "名前"), "Désolé 👋 名前\u0301");
}

}  // namespace
}  // namespace qv_commons
