// Catches Objective-C exceptions for files under ARC, where `@catch` does not link.
#pragma once

@class NSException;

// Runs `body`; the exception that left it, or nil.
NSException* catchException(void (^body)(void));
