#import "qv_commons/platform/uikit/include/QV_Commons_iOS/UISearchBar+QV_SearchBar.h"
#import "qv_commons/platform/uikit/uikit_search_bar.h"

@implementation UISearchBar (QV_SearchBar)

- (UITextField*)qv_searchTextField_all_iOS_versions {
  const qv_commons::uikit::UIKitSearchBar searchBar(self);
  qv_commons::TextField* const found = searchBar.qv_searchTextField_all_iOS_versions();
  if (found == nullptr) return nil;
  return static_cast<qv_commons::uikit::UIKitTextField*>(found)->uiTextField();
}

@end
