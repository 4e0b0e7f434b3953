// Prints the texts of the memory adapter's layouts, a line each: layout, view, text.
#include <iostream>

#include "qv_commons/platform/memory/memory_layout.h"

namespace {

void print(const char* name, const qv_commons::memory::MemoryLayout& layout) {
  for (const auto& [view, of] : layout) {
    if (of.text) std::cout << name << "\t" << view << "\t" << *of.text << "\n";
  }
}

}  // namespace

int main() {
  print("QV_AgeGateViewController", qv_commons::memory::ageGateLayout());
  print("QV_AgeGateRefusedViewController", qv_commons::memory::ageGateRefusedLayout());
}
