#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

#include "tests/support_code/heap.h"

namespace qv_commons::test {
namespace {

void* note(void* block) {
  if (block == nullptr) std::abort();  // no test is about an exhausted heap
  noteAllocated(malloc_usable_size(block));
  return block;
}

void* allocate(std::size_t size) {
  return note(std::malloc(std::max<std::size_t>(size, 1)));
}

void* allocate(std::size_t size, std::align_val_t alignment) {
  const auto boundary = static_cast<std::size_t>(alignment);
  return note(std::aligned_alloc(boundary, (size + boundary - 1) / boundary * boundary));
}

void release(void* block) {
  if (block == nullptr) return;
  noteReleased(malloc_usable_size(block));
  std::free(block);
}

}  // namespace

// The operators below note every block from the start of the process. Calling this is what makes
// the linker take them from the library.
void startWatchingTheHeap() {}

}  // namespace qv_commons::test

using qv_commons::test::allocate;
using qv_commons::test::release;

// Every other form of new and delete calls one of these by default.
void* operator new(std::size_t size) {
  return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate(size, alignment);
}
void operator delete(void* block) noexcept {
  release(block);
}
void operator delete(void* block, std::size_t) noexcept {
  release(block);
}
void operator delete(void* block, std::align_val_t) noexcept {
  release(block);
}
void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
  release(block);
}
