// Whatever a host asks for, no resource lies outside the folder.
//
// An input is a name and an extension, a NUL between them.

#include <filesystem>
#include <string>

#include "qv_commons/platform/desktop/resource_search.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace fs = std::filesystem;
  using qv_commons::fuzz::check;
  static const fs::path folder = [] {
    const fs::path made = fs::temp_directory_path() / "qv_commons_resource_fuzz" / "inside";
    fs::create_directories(made / "texts");
    return fs::canonical(made);
  }();
  const std::string_view input = qv_commons::fuzz::textOf(data, size);
  const std::size_t end = std::min(input.find('\0'), input.size());
  const std::string_view extension = input.substr(std::min(end + 1, input.size()));
  const auto found = qv_commons::desktop::findResource(folder, input.substr(0, end), extension);
  if (!found) return 0;
  const std::string place = fs::canonical(*found);
  check(place == folder || place.starts_with(folder.string() + "/"), "it lies in the folder");
  return 0;
}
