// Whether a test runs under a sanitizer, which keeps freed memory and files of its own.
#pragma once

namespace qv_commons::test {

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
inline constexpr bool kIsSanitized = true;
#else
inline constexpr bool kIsSanitized = false;
#endif
#else
inline constexpr bool kIsSanitized = false;
#endif

}  // namespace qv_commons::test
