// Closures on their way between the platform and the library. A null block is an absent closure.
#pragma once

#import <Foundation/Foundation.h>
#include <functional>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons::uikit {

inline id copyOf(id block) {
  return [block copy];
}

template <class... Arguments>
std::function<void(Arguments...)> toClosure(void (^block)(Arguments...)) {
  if (block == nil) return nullptr;
  void (^copy)(Arguments...) = copyOf(block);
  return [copy](Arguments... arguments) { copy(arguments...); };
}

inline void (^toBlock(Completion completion))(void) {
  if (!completion) return nil;
  return ^{
    completion();
  };
}

}  // namespace qv_commons::uikit
