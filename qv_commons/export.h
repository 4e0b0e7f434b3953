// Marks what a shared library shows of itself; everything else in it is hidden.
//
//     class QV_COMMONS_EXPORT Clock { /* ... */ };
#pragma once

#ifdef QV_COMMONS_SHARED
#define QV_COMMONS_EXPORT __attribute__((visibility("default")))
#else
#define QV_COMMONS_EXPORT
#endif
