// What clang calls under ARC: retaining, releasing, zeroing weak references, associated objects;
// and the message look-up of the non-fragile ABI.
#include <mutex>
#include <objc/message.h>
#include <unordered_map>
#include <unordered_set>
#include <unwind.h>
#include <utility>

#include "tests/uikit_standin/runtime/runtime.h"

namespace {

struct Slot {
  Class owner;
  Class cachedFor;
  const char* types;
  int version;
  IMP method;
};

// A caller reads the method out of a slot at once; a few are enough for nested look-ups.
Slot* slotFor(IMP method) {
  thread_local Slot slots[8];
  thread_local unsigned next = 0;
  Slot& slot = slots[next++ % 8];
  slot.method = method;
  return &slot;
}

std::recursive_mutex& lock() {
  static auto* const mutex = new std::recursive_mutex;
  return *mutex;
}

using WeakReferences = std::unordered_map<id, std::unordered_set<id*>>;

WeakReferences& weakReferences() {
  static auto* const references = new WeakReferences;
  return *references;
}

using AssociatedObjects = std::unordered_map<id, std::unordered_map<const void*, id>>;

AssociatedObjects& associatedObjects() {
  static auto* const objects = new AssociatedObjects;
  return *objects;
}

// A class is not asked: it may be on the way to being initialised, and not answer yet.
bool isConstant(id object) {
  if (class_isMetaClass(object_getClass(object))) return true;
  return [object retainCount] == NSUIntegerMax;
}

IMP originalDealloc;

void releaseObject(id self, SEL) {
  // Under the lock, so that no weak reference brings back an object that is on its way out.
  std::unique_lock guard(lock());
  if (!NSDecrementExtraRefCountWasZero(self)) return;
  runtime::clearWeakReferences(self);
  guard.unlock();
  [self dealloc];
}

void deallocObject(id self, SEL selector) {
  runtime::clearWeakReferences(self);
  const std::vector<id> associated = runtime::takeAssociatedObjects(self);
  reinterpret_cast<void (*)(id, SEL)>(originalDealloc)(self, selector);
  for (id object : associated) [object release];
}

}  // namespace

namespace runtime {

void clearWeakReferences(id object) {
  const std::lock_guard guard(lock());
  const auto found = weakReferences().find(object);
  if (found == weakReferences().end()) return;
  for (id* reference : found->second) *reference = nil;
  weakReferences().erase(found);
}

std::vector<id> takeAssociatedObjects(id object) {
  const std::lock_guard guard(lock());
  std::vector<id> taken;
  const auto found = associatedObjects().find(object);
  if (found == associatedObjects().end()) return taken;
  for (const auto& [key, value] : found->second) taken.push_back(value);
  associatedObjects().erase(found);
  return taken;
}

}  // namespace runtime

// In +load, not in a C++ initialiser: those may run before the selectors are registered.
@interface StandinArcSupport : NSObject
@end

@implementation StandinArcSupport
+ (void)load {
  method_setImplementation(class_getInstanceMethod([NSObject class], @selector(release)),
                           reinterpret_cast<IMP>(releaseObject));
  originalDealloc =
      method_setImplementation(class_getInstanceMethod([NSObject class], @selector(dealloc)),
                               reinterpret_cast<IMP>(deallocObject));
}
@end

extern "C" {

Slot* objc_msg_lookup_sender(id* receiver, SEL selector, id) {
  return slotFor(objc_msg_lookup(*receiver, selector));
}

Slot* objc_slot_lookup_super(struct objc_super* super, SEL selector) {
  return slotFor(objc_msg_lookup_super(super, selector));
}

_Unwind_Reason_Code __gxx_personality_v0(int, _Unwind_Action, _Unwind_Exception_Class,
                                         _Unwind_Exception*, _Unwind_Context*);

_Unwind_Reason_Code __gnustep_objcxx_personality_v0(int version, _Unwind_Action actions,
                                                    _Unwind_Exception_Class exceptionClass,
                                                    _Unwind_Exception* exception,
                                                    _Unwind_Context* context) {
  return __gxx_personality_v0(version, actions, exceptionClass, exception, context);
}

id objc_retain(id object) {
  return [object retain];
}
void objc_release(id object) {
  [object release];
}
id objc_autorelease(id object) {
  return [object autorelease];
}
id objc_retainBlock(id block) {
  return static_cast<id>(_Block_copy(block));
}
id objc_retainAutorelease(id object) {
  return [[object retain] autorelease];
}
id objc_autoreleaseReturnValue(id object) {
  return [object autorelease];
}
id objc_retainAutoreleaseReturnValue(id object) {
  return [[object retain] autorelease];
}
id objc_retainAutoreleasedReturnValue(id object) {
  return [object retain];
}
id objc_claimAutoreleasedReturnValue(id object) {
  return [object retain];
}
id objc_unsafeClaimAutoreleasedReturnValue(id object) {
  return object;
}
void* objc_autoreleasePoolPush(void) {
  return [NSAutoreleasePool new];
}
void objc_autoreleasePoolPop(void* pool) {
  [static_cast<NSAutoreleasePool*>(pool) release];
}
id objc_alloc(Class type) {
  return [type alloc];
}
id objc_allocWithZone(Class type) {
  return [type allocWithZone:NULL];
}
id objc_alloc_init(Class type) {
  return [[type alloc] init];
}

void objc_storeStrong(id* reference, id object) {
  id previous = *reference;
  *reference = [object retain];
  [previous release];
}

id objc_storeWeak(id* reference, id object) {
  const std::lock_guard guard(lock());
  if (const auto found = weakReferences().find(*reference); found != weakReferences().end()) {
    found->second.erase(reference);
  }
  if (object != nil && !isConstant(object)) weakReferences()[object].insert(reference);
  return *reference = object;
}

id objc_initWeak(id* reference, id object) {
  *reference = nil;
  return objc_storeWeak(reference, object);
}

void objc_destroyWeak(id* reference) {
  objc_storeWeak(reference, nil);
}

id objc_loadWeakRetained(id* reference) {
  const std::lock_guard guard(lock());
  return [*reference retain];
}

id objc_loadWeak(id* reference) {
  return [objc_loadWeakRetained(reference) autorelease];
}

void objc_copyWeak(id* target, id* source) {
  const std::lock_guard guard(lock());
  objc_initWeak(target, *source);
}

void objc_moveWeak(id* target, id* source) {
  const std::lock_guard guard(lock());
  objc_copyWeak(target, source);
  objc_destroyWeak(source);
}

void objc_setAssociatedObject(id object, const void* key, id value, uintptr_t) {
  id previous = nil;
  {
    const std::lock_guard guard(lock());
    id& slot = associatedObjects()[object][key];
    previous = slot;
    slot = [value retain];
  }
  [previous release];
}

id objc_getAssociatedObject(id object, const void* key) {
  const std::lock_guard guard(lock());
  const auto found = associatedObjects().find(object);
  if (found == associatedObjects().end()) return nil;
  const auto value = found->second.find(key);
  return value == found->second.end() ? nil : [[value->second retain] autorelease];
}

}  // extern "C"
