#import "qv_commons/platform/uikit/uikit_search_bar.h"

#import "qv_commons/platform/uikit/availability.h"
#import "qv_commons/platform/uikit/text.h"

namespace qv_commons::uikit {

std::string UIKitTextField::text() const {
  return toString(textField_.text);
}

void UIKitTextField::setText(const std::string& text) {
  textField_.text = toNSString(text);
}

TextField* UIKitSearchBar::searchTextField() const {
  if (QV_IOS_AVAILABLE(13.0)) return &given_.emplace(searchBar_.searchTextField);
  return nullptr;
}

SearchBarValue UIKitSearchBar::valueForKey(std::string_view key) const {
  id value = [searchBar_ valueForKey:toNSString(key)];
  if (value == nil) return std::monostate();
  if (![value isKindOfClass:[UITextField class]]) return OtherObject();
  return &given_.emplace(static_cast<UITextField*>(value));
}

}  // namespace qv_commons::uikit
