#include "tests/support_code/allocation_counter.h"

#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <string>
#include <thread>

namespace qv_commons::test {
namespace {

struct alignas(128) Wide {
  char bytes[128];
};

// Out of the compiler's sight, so that no pair of new and delete is left out.
std::string textOf(volatile std::size_t* length) {
  return std::string(*length, 'x');
}

TEST(AllocationCounter, CountsEveryForm) {
  AllocationCounter counter;
  ::operator delete(::operator new(10));
  EXPECT_EQ(counter.calls(), 1);
  ::operator delete[](::operator new[](10));
  EXPECT_EQ(counter.calls(), 2);
  ::operator delete(::operator new(10, std::nothrow), std::nothrow);
  EXPECT_EQ(counter.calls(), 3);
  ::operator delete[](::operator new[](128, std::align_val_t(64)), std::align_val_t(64));
  EXPECT_EQ(counter.calls(), 4);
}

TEST(AllocationCounter, HoldsTheAlignmentAskedFor) {
  const auto wide = std::make_unique<Wide>();
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(wide.get()) % 128, 0u);
}

TEST(AllocationCounter, SeesTheStandardLibrarysOwnAllocations) {
  volatile std::size_t length = 1000;
  AllocationCounter counter;
  const std::string text = textOf(&length);
  EXPECT_EQ(counter.calls(), 1);
  EXPECT_GE(counter.peakBytes(), 1001);
  EXPECT_LT(counter.peakBytes(), 1100);
}

TEST(AllocationCounter, KeepsThePeakAfterMemoryWasGivenBack) {
  volatile std::size_t length = 5000;
  AllocationCounter counter;
  { const std::string first = textOf(&length); }
  { const std::string second = textOf(&length); }
  EXPECT_EQ(counter.calls(), 2);
  EXPECT_GE(counter.peakBytes(), 5001);
  EXPECT_LT(counter.peakBytes(), 5100);
}

TEST(AllocationCounter, NestsWithoutLosingTheOuterPeak) {
  volatile std::size_t large = 5000;
  volatile std::size_t small = 100;
  AllocationCounter outer;
  { const std::string text = textOf(&large); }
  {
    AllocationCounter inner;
    const std::string text = textOf(&small);
    EXPECT_EQ(inner.calls(), 1);
    EXPECT_LT(inner.peakBytes(), 200);
  }
  EXPECT_EQ(outer.calls(), 2);
  EXPECT_GE(outer.peakBytes(), 5001);
}

TEST(AllocationCounter, LeavesOtherThreadsOut) {
  volatile std::size_t length = 1000;
  std::int64_t callsOfTheOther = 0;
  AllocationCounter here;
  std::thread([&] {
    AllocationCounter there;
    for (int i = 0; i < 1000; ++i) textOf(&length);
    callsOfTheOther = there.calls();
  }).join();
  EXPECT_EQ(callsOfTheOther, 1000);
  EXPECT_LT(here.calls(), 10);  // what starting a thread takes
}

}  // namespace
}  // namespace qv_commons::test
