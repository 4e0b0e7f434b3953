#include <cstdlib>
#include <sanitizer/allocator_interface.h>

#include "tests/support_code/heap.h"

namespace qv_commons::test {
namespace {

void onAllocation(const volatile void*, std::size_t size) {
  noteAllocated(size);
}

void onRelease(const volatile void* block) {
  if (block == nullptr) return;
  noteReleased(__sanitizer_get_allocated_size(const_cast<const void*>(block)));
}

}  // namespace

void startWatchingTheHeap() {
  static const int installed = __sanitizer_install_malloc_and_free_hooks(onAllocation, onRelease);
  if (installed == 0) std::abort();
}

}  // namespace qv_commons::test
