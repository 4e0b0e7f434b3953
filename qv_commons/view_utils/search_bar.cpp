#include "qv_commons/view_utils/search_bar.h"

#include "qv_commons/platform/platform.h"

namespace qv_commons {

TextField* SearchBar::qv_searchTextField_all_iOS_versions() const {
  constexpr OperatingSystemVersion kPublished = {13, 0, 0};
  if (currentPlatform().systemVersion.isOperatingSystemAtLeastVersion(kPublished)) {
    return searchTextField();
  }
  const SearchBarValue value = valueForKey("_searchField");
  TextField* const* field = std::get_if<TextField*>(&value);
  return field == nullptr ? nullptr : *field;
}

}  // namespace qv_commons
