// libc++ has had it for iOS from 12.0 on: it throws what an older library lacks.
#include <optional>

int use(const std::optional<int>& value) {
  return value.value();
}
