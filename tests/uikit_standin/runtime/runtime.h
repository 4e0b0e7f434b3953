// What makes sources compiled for the device's Objective-C, under ARC and with blocks, run on GCC's
// Objective-C run-time and gnustep-base. For tests only; the files of this folder are compiled
// without ARC.
#pragma once

#import <Foundation/Foundation.h>
#include <vector>

extern "C" {

// A heap copy of a block with one reference more; the block's last reference frees it.
void* _Block_copy(const void* block);
void _Block_release(const void* block);

}  // extern "C"

namespace runtime {

// Empties every weak reference to an object that is about to go.
void clearWeakReferences(id object);

// Takes the objects associated with an object that is about to go; the caller releases them.
std::vector<id> takeAssociatedObjects(id object);

}  // namespace runtime
