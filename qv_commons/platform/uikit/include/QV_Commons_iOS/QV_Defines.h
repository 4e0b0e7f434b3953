// What the library's headers share.
#pragma once

#import <Foundation/Foundation.h>

// Swift callers are held to the main thread, where the compiler knows the mark (Xcode 13).
#if !defined(NS_SWIFT_UI_ACTOR)
#define NS_SWIFT_UI_ACTOR
#endif
