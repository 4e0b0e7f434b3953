#include "tests/support_code/allocation_counter.h"

#include <algorithm>

#include "tests/support_code/heap.h"

namespace qv_commons::test {
namespace {

struct Heap {
  std::int64_t calls = 0;
  std::int64_t held = 0;
  std::int64_t peak = 0;
};

thread_local Heap heap;

}  // namespace

void noteAllocated(std::size_t bytes) {
  ++heap.calls;
  heap.held += static_cast<std::int64_t>(bytes);
  heap.peak = std::max(heap.peak, heap.held);
}

void noteReleased(std::size_t bytes) {
  heap.held -= static_cast<std::int64_t>(bytes);
}

AllocationCounter::AllocationCounter()
    : callsAtStart_(heap.calls), heldAtStart_(heap.held), peakAround_(heap.peak) {
  startWatchingTheHeap();
  heap.peak = heap.held;
}

AllocationCounter::~AllocationCounter() {
  heap.peak = std::max(heap.peak, peakAround_);
}

std::int64_t AllocationCounter::calls() const {
  return heap.calls - callsAtStart_;
}

std::int64_t AllocationCounter::peakBytes() const {
  return heap.peak - heldAtStart_;
}

}  // namespace qv_commons::test
