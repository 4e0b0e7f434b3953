// The durations of the contests on their texts.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <vector>

namespace qv_commons::bench {

// So many that no branch predictor knows them by heart after a while.
constexpr std::size_t kDurations = 16'384;

// A third each below an hour, below ten and below a hundred.
inline std::vector<std::int64_t> everydayDurations() {
  std::mt19937_64 random(1);
  std::vector<std::int64_t> all;
  while (all.size() < kDurations) {
    constexpr std::array<std::uint64_t, 3> kBelow = {3600, 36'000, 360'000};
    all.push_back(static_cast<std::int64_t>(random() % kBelow[random() % kBelow.size()]));
  }
  return all;
}

}  // namespace qv_commons::bench
