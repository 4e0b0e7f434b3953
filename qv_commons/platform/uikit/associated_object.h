// C++ objects that belong to an Objective-C object and go when it goes.
//
// The library's view controllers and views refer to the platform's, which own them: that is how one
// is found again for the same object of the platform.
#pragma once

#import <Foundation/Foundation.h>
#include <memory>

namespace qv_commons::uikit {

// What is associated with `owner` under `key`, an address of its own; null if nothing is.
std::shared_ptr<void> associatedObject(id owner, const void* key);

// Replaces what was associated under `key`.
void associate(id owner, const void* key, std::shared_ptr<void> object);

// A reference to `object`, which belongs to `owner`, that keeps `owner` alive.
template <class T>
std::shared_ptr<T> retaining(id owner, T& object) {
  // Set free by the last strong reference; weak ones keep the deleter, and must not keep the owner.
  return std::shared_ptr<T>(&object, [owner](T*) mutable { owner = nil; });
}

}  // namespace qv_commons::uikit
