#include "tests/conformance/memory_adapter.h"
#include "tests/conformance/suites.h"

namespace qv_commons::conformance {
namespace {

std::unique_ptr<Adapter> makeMemoryAdapter() {
  return std::make_unique<MemoryAdapter>();
}

QV_RUN_ALL_SUITES(Memory, makeMemoryAdapter);

}  // namespace
}  // namespace qv_commons::conformance
