#include "qv_commons/platform/memory/memory_search_bar.h"

#include <utility>

#include "qv_commons/platform/fatal_error.h"

namespace qv_commons::memory {

MemorySearchBar::MemorySearchBar(Record& record, std::string name)
    : values{{"_searchField", &textField_}}, record_(record), name_(std::move(name)) {}

TextField* MemorySearchBar::searchTextField() const {
  record_.add(name_, ".searchTextField");
  return &textField_;
}

SearchBarValue MemorySearchBar::valueForKey(std::string_view key) const {
  record_.add(name_, ".valueForKey ", quoted(key));
  const auto found = values.find(key);
  if (found == values.end()) {
    fatalError("MemorySearchBar: " + name_ + " has no value for the key " + quoted(key));
  }
  return found->second;
}

}  // namespace qv_commons::memory
