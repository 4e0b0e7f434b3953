#include "qv_commons/platform/platform.h"

#include <gtest/gtest.h>

#include "qv_commons/platform/fatal_error.h"
#include "qv_commons/platform/memory/memory_platform.h"

namespace qv_commons {
namespace {

TEST(CurrentPlatform, IsAFatalErrorWhereNoneIsInstalled) {
  EXPECT_DEATH(currentPlatform(),
               "QV_Commons fatal error: no platform is installed: install an adapter's first");
}

TEST(CurrentPlatform, IsSwappedForAScopeAndPutBack) {
  const memory::MemoryPlatform outer;
  const memory::MemoryPlatform inner;
  const ScopedPlatform before(inner.platform());  // leaves none installed for the next test
  installPlatform(outer.platform());
  EXPECT_EQ(&currentPlatform(), &outer.platform());
  {
    const ScopedPlatform scope(inner.platform());
    EXPECT_EQ(&currentPlatform(), &inner.platform());
  }
  EXPECT_EQ(&currentPlatform(), &outer.platform());
}

TEST(FatalError, NamesTheLibraryAndTheReason) {
  EXPECT_EXIT(fatalError("the text is too short"), testing::KilledBySignal(SIGABRT),
              "^QV_Commons fatal error: the text is too short\n");
}

}  // namespace
}  // namespace qv_commons
