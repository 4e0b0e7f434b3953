// Runs the tests as an app of their own: with user defaults that nobody else writes, and an
// autorelease pool for each test.
#import <Foundation/Foundation.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#import "tests/uikit/uikit_test.h"

// gnustep-base keeps what it once made; only what the tests leak is of interest, and can't be told
// apart.
extern "C" const char* __asan_default_options() {
  return "detect_leaks=0";
}

// What @autoreleasepool is made of.
extern "C" void* objc_autoreleasePoolPush(void);
extern "C" void objc_autoreleasePoolPop(void* pool);

namespace {

void* pool = nullptr;

// gnustep-base reads where the user defaults are kept from the file that this variable names.
class OwnUserDefaults {
 public:
  OwnUserDefaults() {
    std::string folder = std::filesystem::temp_directory_path() / "qv_commons_uikit_XXXXXX";
    folder_ = mkdtemp(folder.data());
    const std::filesystem::path settings = folder_ / "GNUstep.conf";
    std::ofstream(settings) << "GNUSTEP_USER_DIR=GNUstep\nGNUSTEP_USER_DEFAULTS_DIR="
                            << folder_.string() << '\n';
    setenv("GNUSTEP_CONFIG_FILE", settings.c_str(), 1);
  }
  ~OwnUserDefaults() { std::filesystem::remove_all(folder_); }

 private:
  std::filesystem::path folder_;
};

class Pools : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override {
    pool = objc_autoreleasePoolPush();
    standin::reset();
  }
  void OnTestEnd(const testing::TestInfo&) override { objc_autoreleasePoolPop(pool); }
};

}  // namespace

void endTurnOfRunLoop() {
  objc_autoreleasePoolPop(pool);
  pool = objc_autoreleasePoolPush();
}

int main(int argc, char** argv) {
  const OwnUserDefaults defaults;
  testing::InitGoogleTest(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new Pools);
  @autoreleasepool {
    [NSTimeZone setDefaultTimeZone:[NSTimeZone timeZoneForSecondsFromGMT:0]];
    [NSUserDefaults setUserLanguages:@[ @"en" ]];
    return RUN_ALL_TESTS();
  }
}
