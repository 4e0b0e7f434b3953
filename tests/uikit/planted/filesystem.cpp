#include <filesystem>

bool isThere(const char* file) {
  return std::filesystem::exists(file);
}
