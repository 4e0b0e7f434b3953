// Counts what a piece of code takes from the heap through `operator new`.
//
//     qv_commons::test::AllocationCounter counter;
//     std::string text(1000, 'x');
//     EXPECT_EQ(counter.calls(), 1);
//     EXPECT_GE(counter.peakBytes(), 1001);
//
// A test program that uses it, by linking qv_test_support, has its global `operator new` and
// `operator delete` replaced. The address and thread sanitizers have their own, so there the counts
// come from them, `malloc` included. Each counter sees its own thread alone, from the moment it is
// made; counters may be nested.
#pragma once

#include <cstdint>

namespace qv_commons::test {

class AllocationCounter {
 public:
  AllocationCounter();
  ~AllocationCounter();
  AllocationCounter(const AllocationCounter&) = delete;
  AllocationCounter& operator=(const AllocationCounter&) = delete;

  // How often `operator new` was called, in any of its forms.
  std::int64_t calls() const;

  // The most bytes held at one time, over what was held at the start. Each block counts with its
  // usable size, to which malloc rounds up what was asked for.
  std::int64_t peakBytes() const;

 private:
  std::int64_t callsAtStart_;
  std::int64_t heldAtStart_;
  std::int64_t peakAround_;
};

}  // namespace qv_commons::test
