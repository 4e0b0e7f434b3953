// The memory adapter's search bar.
//
//     qv_commons::memory::MemorySearchBar bar(platform.record(), "bar");
//     platform.device().versionNumber = {12, 4, 0};
//     bar.values["_searchField"] = qv_commons::OtherObject();  // a system that changed its mind
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "qv_commons/platform/memory/record.h"
#include "qv_commons/view_utils/search_bar.h"

namespace qv_commons::memory {

class MemoryTextField final : public TextField {
 public:
  std::string text() const override { return text_; }
  void setText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

class MemorySearchBar final : public SearchBar {
 public:
  // `name` stands for the bar in the record's lines.
  MemorySearchBar(Record& record, std::string name);
  MemorySearchBar(const MemorySearchBar&) = delete;
  MemorySearchBar& operator=(const MemorySearchBar&) = delete;

  // What the bar holds; at first its text field, under "_searchField". A key that is not here is
  // unknown to the bar, and looking it up a fatal error.
  std::map<std::string, SearchBarValue, std::less<>> values;

  MemoryTextField& textField() { return textField_; }

  TextField* searchTextField() const override;
  SearchBarValue valueForKey(std::string_view key) const override;

 private:
  Record& record_;
  std::string name_;
  mutable MemoryTextField textField_;
};

}  // namespace qv_commons::memory
