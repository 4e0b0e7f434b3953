// A search bar by UISearchBar.
#pragma once

#import <UIKit/UIKit.h>
#include <optional>

#include "qv_commons/view_utils/search_bar.h"

namespace qv_commons::uikit {

class UIKitTextField final : public TextField {
 public:
  explicit UIKitTextField(UITextField* textField) : textField_(textField) {}

  UITextField* uiTextField() const { return textField_; }

  std::string text() const override;
  void setText(const std::string& text) override;

 private:
  UITextField* textField_;
};

// The text fields that it gives live as long as it does, or until it is asked again.
class UIKitSearchBar final : public SearchBar {
 public:
  explicit UIKitSearchBar(UISearchBar* searchBar) : searchBar_(searchBar) {}

  TextField* searchTextField() const override;
  SearchBarValue valueForKey(std::string_view key) const override;

 private:
  UISearchBar* searchBar_;
  mutable std::optional<UIKitTextField> given_;
};

}  // namespace qv_commons::uikit
