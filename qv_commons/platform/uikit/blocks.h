// Closures on their way between the platform and the library. A null block is an absent closure.
#pragma once

#include <functional>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::uikit {

// A copy of the block, kept while it runs even where it lets go of whatever holds the closure.
template <class... Arguments>
std::function<void(Arguments...)> toClosure(void (^block)(Arguments...)) {
  if (block == nil) return nullptr;
  return [copy = [block copy]](Arguments... arguments) {
    __attribute__((objc_precise_lifetime)) void (^kept)(Arguments...) = copy;
    kept(arguments...);
  };
}

inline void (^toBlock(Completion completion))(void) {
  if (!completion) return nil;
  return ^{
    completion();
  };
}

}  // namespace qv_commons::uikit
