#include "qv_commons/platform/fatal_error.h"

#include <cstdio>
#include <cstdlib>

namespace qv_commons {

void fatalError(std::string_view message) {
  std::fprintf(stderr, "QV_Commons fatal error: %.*s\n", static_cast<int>(message.size()),
               message.data());
  std::fflush(stderr);
  std::abort();
}

}  // namespace qv_commons
