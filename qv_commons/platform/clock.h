// The wall clock.
#pragma once

#include "qv_commons/platform/instant.h"

namespace qv_commons {

class Clock {
 public:
  virtual ~Clock() = default;

  virtual Instant now() const = 0;  // any thread
};

}  // namespace qv_commons
