// The block run-time: what clang calls for -fblocks, after the published block ABI. Blocks are
// objects of GCC's run-time, so that they can be sent copy, retain and release.
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "tests/uikit_standin/runtime/runtime.h"

@interface StandinBlock : NSObject
@end
@interface StandinStackBlock : StandinBlock
@end
@interface StandinGlobalBlock : StandinBlock
@end
@interface StandinHeapBlock : StandinBlock
@end

// clang's literals refer to these symbols as the classes of blocks.
__asm__(
    ".globl _NSConcreteStackBlock\n\t.set _NSConcreteStackBlock, _OBJC_CLASS_StandinStackBlock\n\t"
    ".globl _NSConcreteGlobalBlock\n\t.set _NSConcreteGlobalBlock, "
    "_OBJC_CLASS_StandinGlobalBlock\n");

namespace {

constexpr std::int32_t kOnHeap = 1 << 24;
constexpr std::int32_t kHasHelpers = 1 << 25;
constexpr std::int32_t kIsGlobal = 1 << 28;
constexpr std::int32_t kCountMask = 0xffff;
constexpr int kFieldIsObject = 3;
constexpr int kFieldIsBlock = 7;
constexpr int kFieldIsVariable = 8;
constexpr int kFromVariable = 128;

struct Descriptor {
  unsigned long reserved;
  unsigned long size;
  void (*copy)(void* target, const void* source);
  void (*dispose)(const void* block);
};

struct Block {
  void* isa;
  std::int32_t flags;
  std::int32_t references;  // of a heap block
  void* invoke;
  Descriptor* descriptor;
};

// A `__block` variable, on the stack or moved to the heap.
struct Variable {
  void* isa;
  Variable* forwarding;
  std::int32_t flags;  // the low bits count references, 0 on the stack
  std::uint32_t size;
  void (*keep)(Variable* target, Variable* source);
  void (*destroy)(Variable*);
};

std::int32_t increment(std::int32_t& count) {
  return std::atomic_ref<std::int32_t>(count).fetch_add(1) + 1;
}

std::int32_t decrement(std::int32_t& count) {
  return std::atomic_ref<std::int32_t>(count).fetch_sub(1) - 1;
}

Variable* retainVariable(Variable* variable) {
  Variable* const current = variable->forwarding;
  if ((current->flags & kCountMask) != 0) {
    increment(current->flags);
    return current;
  }
  auto* moved = static_cast<Variable*>(std::malloc(variable->size));
  std::memcpy(moved, variable, variable->size);
  moved->flags |= kOnHeap | 2;  // the block's reference and the stack frame's
  moved->forwarding = moved;
  variable->forwarding = moved;
  if (variable->flags & kHasHelpers) variable->keep(moved, variable);
  return moved;
}

void releaseVariable(Variable* variable) {
  Variable* const current = variable->forwarding;
  if (!(current->flags & kOnHeap)) return;
  if ((decrement(current->flags) & kCountMask) != 0) return;
  if (current->flags & kHasHelpers) current->destroy(current);
  std::free(current);
}

}  // namespace

extern "C" {

void* _Block_copy(const void* source) {
  auto* block = static_cast<Block*>(const_cast<void*>(source));
  if (block == nullptr || (block->flags & kIsGlobal)) return block;
  if (block->flags & kOnHeap) {
    increment(block->references);
    return block;
  }
  auto* copy = static_cast<Block*>(std::malloc(block->descriptor->size));
  std::memcpy(copy, block, block->descriptor->size);
  copy->isa = static_cast<void*>([StandinHeapBlock class]);
  copy->flags |= kOnHeap;
  copy->references = 1;
  if (block->flags & kHasHelpers) block->descriptor->copy(copy, block);
  return copy;
}

void _Block_release(const void* released) {
  auto* block = static_cast<Block*>(const_cast<void*>(released));
  if (block == nullptr || !(block->flags & kOnHeap)) return;
  if (decrement(block->references) != 0) return;
  runtime::clearWeakReferences(static_cast<id>(static_cast<void*>(block)));
  if (block->flags & kHasHelpers) block->descriptor->dispose(block);
  std::free(block);
}

void _Block_object_assign(void* target, const void* value, const int flags) {
  if (flags & kFromVariable) {  // the object in a `__block` variable: not retained
    *static_cast<const void**>(target) = value;
  } else if (flags & kFieldIsVariable) {
    auto* variable = static_cast<Variable*>(const_cast<void*>(value));
    *static_cast<Variable**>(target) = retainVariable(variable);
  } else if ((flags & kFieldIsBlock) == kFieldIsBlock) {
    *static_cast<void**>(target) = _Block_copy(value);
  } else if ((flags & kFieldIsObject) == kFieldIsObject) {
    *static_cast<id*>(target) = [static_cast<id>(const_cast<void*>(value)) retain];
  }
}

void _Block_object_dispose(const void* value, const int flags) {
  if (flags & kFromVariable) return;
  if (flags & kFieldIsVariable) {
    releaseVariable(static_cast<Variable*>(const_cast<void*>(value)));
  } else if ((flags & kFieldIsBlock) == kFieldIsBlock) {
    _Block_release(value);
  } else if ((flags & kFieldIsObject) == kFieldIsObject) {
    [static_cast<id>(const_cast<void*>(value)) release];
  }
}

}  // extern "C"

@implementation StandinBlock
- (id)copyWithZone:(NSZone*)zone {
  (void)zone;
  return static_cast<id>(_Block_copy(self));
}
- (id)copy {
  return static_cast<id>(_Block_copy(self));
}
- (id)retain {
  return self;
}
- (oneway void)release {
}
- (id)autorelease {
  return self;
}
- (NSUInteger)retainCount {
  return 1;
}
- (void)dealloc {
  if ((0)) [super dealloc];  // never sent; the compiler wants to see it
}
@end

@implementation StandinStackBlock
@end

@implementation StandinGlobalBlock
@end

@implementation StandinHeapBlock
- (id)retain {
  return static_cast<id>(_Block_copy(self));
}
- (oneway void)release {
  _Block_release(self);
}
- (id)autorelease {
  [NSAutoreleasePool addObject:self];
  return self;
}
- (NSUInteger)retainCount {
  const auto* block = static_cast<const Block*>(static_cast<const void*>(self));
  return static_cast<NSUInteger>(block->references);
}
@end
