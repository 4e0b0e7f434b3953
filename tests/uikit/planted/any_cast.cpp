// libc++ has had it for iOS from 12.0 on: it throws what an older library lacks.
#include <any>

int use(const std::any& value) {
  return std::any_cast<int>(value);
}
