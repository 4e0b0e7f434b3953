// Loads modules compiled for the non-fragile ABI, which ARC needs, into GCC's run-time, which knows
// the older one only: the structures are nearly the same, what differs is put right before
// __objc_exec_class sees it. Programs are linked with -Wl,--wrap=__objc_exec_class.
#include <cstdint>
#include <cstring>
#include <vector>

#include "tests/uikit_standin/runtime/runtime.h"

namespace {

struct InstanceVariable {
  const char* name;
  const char* type;
  int offset;
};

struct InstanceVariables {
  int count;
  InstanceVariable list[1];
};

struct Protocols;

struct ProtocolData {
  std::uintptr_t isa;
  const char* name;
  Protocols* inherited;
};

struct Protocols {
  Protocols* next;
  std::size_t count;
  ProtocolData* list[1];
};

// As clang emits it. The first 13 words are those of GCC's struct objc_class.
struct ClassData {
  ClassData* isa;
  const char* superclassName;  // replaced by the class when the run-time resolves it
  const char* name;
  long version;
  unsigned long info;
  long instanceSize;  // as emitted: minus the size of the class's own variables
  InstanceVariables* variables;
  void* methods;
  void* dispatchTable;
  void* subclasses;
  void* siblings;
  Protocols* protocols;
  void* gcType;
  long abi;
  int** variableOffsets;
};

struct CategoryData {
  const char* name;
  const char* className;
  void* instanceMethods;
  void* classMethods;
  Protocols* protocols;
};

struct Symbols {
  unsigned long selectorCount;
  void* selectors;
  std::uint16_t classCount;
  std::uint16_t categoryCount;
  void* definitions[1];  // the classes, then the categories
};

struct Module {
  unsigned long version;
  unsigned long size;
  const char* name;
  Symbols* symbols;
};

constexpr unsigned long kGccVersion = 8;
constexpr unsigned long kNonFragileVersion = 9;
constexpr unsigned long kArcVersion = 10;
constexpr std::uintptr_t kGccProtocol = 2;
constexpr std::uintptr_t kNonFragileProtocol = 3;

ClassData* classAt(const Module& module, unsigned index) {
  return static_cast<ClassData*>(module.symbols->definitions[index]);
}

// The class of that name among the first `count` of the module, or null.
ClassData* ownClass(const Module& module, const char* name, unsigned count) {
  for (unsigned i = 0; i < count; ++i) {
    if (std::strcmp(classAt(module, i)->name, name) == 0) return classAt(module, i);
  }
  return nullptr;
}

void mendProtocols(Protocols* protocols) {
  for (; protocols != nullptr; protocols = protocols->next) {
    for (std::size_t i = 0; i < protocols->count; ++i) {
      ProtocolData* protocol = protocols->list[i];
      if (protocol == nullptr || protocol->isa != kNonFragileProtocol) continue;
      protocol->isa = kGccProtocol;
      mendProtocols(protocol->inherited);
    }
  }
}

// clang lists the classes of a module in source order, superclasses first.
bool superclassesAreLoaded(const Module& module) {
  for (unsigned i = 0; i < module.symbols->classCount; ++i) {
    const char* superclass = classAt(module, i)->superclassName;
    if (superclass == nullptr || objc_lookUpClass(superclass) != Nil) continue;
    if (ownClass(module, superclass, i) == nullptr) return false;
  }
  return true;
}

// Lays the class's own variables out behind those of its superclass.
void mendClass(ClassData& data, const Module& module) {
  mendProtocols(data.protocols);
  if (data.instanceSize > 0) return;
  long inherited = 0;
  if (data.superclassName != nullptr) {
    if (Class superclass = objc_lookUpClass(data.superclassName)) {
      inherited = static_cast<long>(class_getInstanceSize(superclass));
    } else {
      inherited = ownClass(module, data.superclassName, module.symbols->classCount)->instanceSize;
    }
  }
  const long start = (inherited + 7) & ~7L;
  data.instanceSize = start - data.instanceSize;
  if (data.variables == nullptr) return;
  for (int i = 0; i < data.variables->count; ++i) {
    data.variables->list[i].offset += static_cast<int>(start);
    if (data.variableOffsets) *data.variableOffsets[i] = data.variables->list[i].offset;
  }
}

void mendModule(Module& module) {
  const Symbols& symbols = *module.symbols;
  for (unsigned i = 0; i < symbols.classCount; ++i) mendClass(*classAt(module, i), module);
  for (unsigned i = 0; i < symbols.categoryCount; ++i) {
    mendProtocols(
        static_cast<CategoryData*>(symbols.definitions[symbols.classCount + i])->protocols);
  }
  module.version = kGccVersion;
  module.size = sizeof(Module);
}

// Modules whose superclasses have not been loaded yet.
std::vector<Module*>& waiting() {
  static auto* const modules = new std::vector<Module*>;
  return *modules;
}

}  // namespace

// clang hangs a module's protocols on a category of a class by this name, and GCC's run-time
// registers the protocols of a category only once the class is there.
@interface __ObjC_Protocol_Holder_Ugly_Hack : NSObject
@end

@implementation __ObjC_Protocol_Holder_Ugly_Hack
@end

extern "C" {

void __real___objc_exec_class(void* module);

void __wrap___objc_exec_class(void* loaded) {
  auto* module = static_cast<Module*>(loaded);
  if (module->version == kNonFragileVersion || module->version == kArcVersion) {
    if (!superclassesAreLoaded(*module)) {
      waiting().push_back(module);
      return;
    }
    mendModule(*module);
  }
  __real___objc_exec_class(module);
  for (auto next = waiting().begin(); next != waiting().end(); ++next) {
    if (!superclassesAreLoaded(**next)) continue;
    Module* const ready = *next;
    waiting().erase(next);
    __wrap___objc_exec_class(ready);  // goes on with the rest
    return;
  }
}

}  // extern "C"
