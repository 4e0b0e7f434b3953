#include "tests/support_code/allocation_counter.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace qv_commons::test {
namespace {

struct Heap {
  std::int64_t calls = 0;
  std::int64_t held = 0;
  std::int64_t peak = 0;
};

thread_local Heap heap;

void* note(void* block) {
  if (block == nullptr) std::abort();  // no test is about an exhausted heap
  ++heap.calls;
  heap.held += static_cast<std::int64_t>(malloc_usable_size(block));
  heap.peak = std::max(heap.peak, heap.held);
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
  heap.held -= static_cast<std::int64_t>(malloc_usable_size(block));
  std::free(block);
}

}  // namespace

AllocationCounter::AllocationCounter()
    : callsAtStart_(heap.calls), heldAtStart_(heap.held), peakAround_(heap.peak) {
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

// The standard library's array and non-throwing forms call these by default; the sanitizers' do
// not, so all are here.
using qv_commons::test::allocate;
using qv_commons::test::release;

void* operator new(std::size_t size) {
  return allocate(size);
}
void* operator new[](std::size_t size) {
  return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return allocate(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return allocate(size, alignment);
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate(size, alignment);
}

void operator delete(void* block) noexcept {
  release(block);
}
void operator delete[](void* block) noexcept {
  release(block);
}
void operator delete(void* block, std::size_t) noexcept {
  release(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  release(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  release(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  release(block);
}
void operator delete(void* block, std::align_val_t) noexcept {
  release(block);
}
void operator delete[](void* block, std::align_val_t) noexcept {
  release(block);
}
void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
  release(block);
}
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept {
  release(block);
}
void operator delete(void* block, std::align_val_t, const std::nothrow_t&) noexcept {
  release(block);
}
void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept {
  release(block);
}
