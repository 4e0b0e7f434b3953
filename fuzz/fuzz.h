// What every fuzz target is made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

// The entry that libFuzzer calls for each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace qv_commons::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Ends the process and prints `claim` if it does not hold.
inline void check(bool holds, const char* claim) {
  if (holds) return;
  std::fprintf(stderr, "not true: %s\n", claim);
  std::abort();
}

}  // namespace qv_commons::fuzz
