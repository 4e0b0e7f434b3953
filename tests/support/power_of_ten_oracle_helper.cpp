// Answers power_of_ten_oracle.py.

#include <cinttypes>
#include <cstdio>

#include "qv_commons/support/power_of_ten.h"

int main() {
  for (int k = qv_commons::kMinPowerOfTen; k <= qv_commons::kMaxPowerOfTen; ++k) {
    const qv_commons::Wide power = qv_commons::powerOfTen(k);
    std::printf("%d %016" PRIx64 " %016" PRIx64 "\n", k, power.high, power.low);
  }
}
