// A search bar, and its text field on every version of the system.
//
//     qv_commons::memory::MemorySearchBar bar(platform.record(), "bar");
//     qv_commons::ScopedPlatform scope(platform.platform());
//     if (qv_commons::TextField* field = bar.qv_searchTextField_all_iOS_versions()) {
//       field->setText("notes");
//     }
//
// Main thread only.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "qv_commons/platform/bundle.h"

namespace qv_commons {

class TextField {
 public:
  virtual ~TextField() = default;

  virtual std::string text() const = 0;  // "" where it is empty
  virtual void setText(const std::string& text) = 0;
};

// What a search bar holds under a key: nothing, a text field (never null), or an object of another
// type.
using SearchBarValue = std::variant<std::monostate, TextField*, OtherObject>;

// An adapter implements `searchTextField` and `valueForKey`.
class SearchBar {
 public:
  virtual ~SearchBar() = default;

  // The text field inside, which belongs to the search bar: the published one from version 13.0.0
  // of the system on; before, the value for the private key "_searchField", or null where that is
  // nothing or no text field. A bar that does not know the key raises the platform's error, which
  // is not caught. The version is asked at every call.
  TextField* qv_searchTextField_all_iOS_versions() const;

  // The published text field; there from version 13.0.0 of the system on.
  virtual TextField* searchTextField() const = 0;

  // The value for `key`. A key that the bar does not know is the platform's own uncaught error.
  virtual SearchBarValue valueForKey(std::string_view key) const = 0;
};

}  // namespace qv_commons
