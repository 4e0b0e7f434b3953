// In place of libFuzzer: runs a target once for each file of the folders given.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/fuzz.h"

int main(int argc, char** argv) {
  int count = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes(std::istreambuf_iterator<char>(file), {});
      if (!file) {
        std::fprintf(stderr, "can't read %s\n", entry.path().c_str());
        return 1;
      }
      std::fprintf(stderr, "%s\n", entry.path().filename().c_str());  // the last one is the culprit
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++count;
    }
  }
  std::fprintf(stderr, "%d inputs\n", count);
  return count == 0 ? 1 : 0;
}
