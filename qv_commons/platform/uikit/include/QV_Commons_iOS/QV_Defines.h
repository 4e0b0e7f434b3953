// What the library's headers share.
#pragma once

#import <Foundation/Foundation.h>

// What a program that links the library sees of it; all else is hidden.
#define QV_EXPORT __attribute__((visibility("default")))

// What an app extension, which has no application to ask, can't call: a compiler that makes one
// says so.
#define QV_APP_ONLY                                           \
  __attribute__((availability(ios_app_extension, unavailable, \
                              message = "only apps have an application to ask")))

// For Swift, where the compiler knows these marks. Swift 6 holds its callers to them; Swift 5 does
// so only with strict concurrency checking, and otherwise only in code that is bound to an actor.
#if !defined(NS_SWIFT_UI_ACTOR)
#define NS_SWIFT_UI_ACTOR
#endif
#if !defined(NS_SWIFT_NONISOLATED)
#define NS_SWIFT_NONISOLATED
#endif
#if !defined(NS_SWIFT_SENDABLE)
#define NS_SWIFT_SENDABLE
#endif
