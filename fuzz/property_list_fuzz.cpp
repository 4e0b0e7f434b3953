// Reading an Info.plist of any bytes never crashes, hangs or gives what is not in it.

#include <string>

#include "qv_commons/platform/desktop/property_list.h"

#include "fuzz/fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using qv_commons::fuzz::check;
  const std::string bytes(qv_commons::fuzz::textOf(data, size));
  const auto info = qv_commons::desktop::parseInfoTexts(bytes);
  if (!info) return 0;
  for (const auto& [key, text] : *info) {
    check(!bytes.starts_with("bplist") || text.size() <= 2 * size,
          "a text is no longer than its bytes");
    check(!bytes.starts_with("bplist") || key.size() <= 2 * size, "and so is a key");
  }
  return 0;
}
