// C++ objects that belong to an Objective-C object and go when it goes.
//
// The library's view controllers and views refer to the platform's, which own them: that is how one
// is found again for the same object of the platform.
#pragma once

#import <Foundation/Foundation.h>
#include <memory>

namespace qv_commons::uikit {

// What is attached to `owner` under `key`, an address of its own; null where nothing is.
std::shared_ptr<void> attachmentOf(id owner, const void* key);

// Replaces what was attached under `key`.
void attach(id owner, const void* key, std::shared_ptr<void> attachment);

// A reference to `object`, which is attached to `owner`, that keeps `owner` alive.
template <class T>
std::shared_ptr<T> retaining(id owner, T& object) {
  // Set free by the last strong reference; weak ones keep the deleter, and must not keep the owner.
  return std::shared_ptr<T>(&object, [owner](T*) mutable { owner = nil; });
}

}  // namespace qv_commons::uikit
