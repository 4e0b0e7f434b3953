// The run-time test of the system's version that also lets the compiler see to it that newer
// operations are used behind it only:
//
//     if (QV_IOS_AVAILABLE(13.0)) controller.modalInPresentation = YES;
#pragma once

#ifdef __APPLE__
#define QV_IOS_AVAILABLE(version) @available(iOS version, *)
#else
// Elsewhere clang takes @available for true, so whatever stands in for the system is asked.
#define QV_IOS_AVAILABLE(version) qv_commons::uikit::systemIsAtLeast(#version)

namespace qv_commons::uikit {
bool systemIsAtLeast(const char* version);  // "13.4"
}
#endif
