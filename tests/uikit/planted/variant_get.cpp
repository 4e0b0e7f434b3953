// libc++ has had it for iOS from 12.0 on: it throws what an older library lacks.
#include <variant>

int use(const std::variant<int, bool>& value) {
  return std::get<int>(value);
}
