// Where the allocation counter's figures come from: heap_operators.cpp, or heap_sanitizer.cpp where
// a sanitizer has the heap.
#pragma once

#include <cstddef>

namespace qv_commons::test {

// Called for every block of the calling thread.
void noteAllocated(std::size_t bytes);
void noteReleased(std::size_t bytes);

// From the first call on, every block is noted. Further calls do nothing.
void startWatchingTheHeap();

}  // namespace qv_commons::test
