// A search bar's text field, on every version of the system.
//
//     struct Bar {  // the platform's own search bar, or an object over it
//       const char* searchTextField() const { return "published"; }
//       int valueForKey(std::string_view) const { return 7; }
//       static const char* toTextField(int value) { return value == 0 ? "private" : nullptr; }
//     };
//     qv_commons::ScopedPlatform scope(platform.platform());
//     const char* field = qv_commons::qv_searchTextField_all_iOS_versions(Bar());
//
// Main thread only.
#pragma once

#include "qv_commons/export.h"

namespace qv_commons {

// Whether the system has version 13.0.0 or later, in which search bars publish their text field.
QV_COMMONS_EXPORT bool searchTextFieldIsPublished();

// The text field inside `searchBar`, which belongs to it: from version 13.0.0 of the system on
// `searchTextField()`; before, `toTextField` of the value for the private key "_searchField", null
// if there is no value or it is not a text field. A search bar that does not know the key raises
// the platform's error, which is not caught. The version is asked at every call.
template <class SearchBar>
auto qv_searchTextField_all_iOS_versions(const SearchBar& searchBar) {
  if (searchTextFieldIsPublished()) return searchBar.searchTextField();
  return searchBar.toTextField(searchBar.valueForKey("_searchField"));
}

}  // namespace qv_commons
