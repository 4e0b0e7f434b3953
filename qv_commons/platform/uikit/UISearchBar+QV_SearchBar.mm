#import "qv_commons/platform/uikit/availability.h"
#import "qv_commons/platform/uikit/include/QV_Commons_iOS/UISearchBar+QV_SearchBar.h"
#include "qv_commons/platform/uikit/linked_in.h"
#include "qv_commons/view_utils/search_bar.h"

namespace {

// A UISearchBar as the library asks it.
struct SearchBar {
  UISearchBar* bar;

  UITextField* searchTextField() const {
    if (QV_IOS_AVAILABLE(13.0)) return bar.searchTextField;
    return nil;
  }
  id valueForKey(const char* key) const { return [bar valueForKey:@(key)]; }
  static UITextField* toTextField(id value) {
    return [value isKindOfClass:[UITextField class]] ? value : nil;
  }
};

}  // namespace

@implementation UISearchBar (QV_SearchBar)

- (UITextField*)qv_searchTextField_all_iOS_versions {
  return qv_commons::qv_searchTextField_all_iOS_versions(SearchBar{self});
}

@end

namespace qv_commons::uikit {

void searchBarCategory() {}

}  // namespace qv_commons::uikit
