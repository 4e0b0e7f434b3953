#import "qv_commons/platform/uikit/associated_object.h"

#include <objc/runtime.h>
#include <utility>

@interface QV_AssociatedObject : NSObject {
 @public
  std::shared_ptr<void> content;
}
@end

@implementation QV_AssociatedObject
@end

namespace qv_commons::uikit {

std::shared_ptr<void> associatedObject(id owner, const void* key) {
  QV_AssociatedObject* holder = objc_getAssociatedObject(owner, key);
  return holder == nil ? nullptr : holder->content;
}

void associate(id owner, const void* key, std::shared_ptr<void> object) {
  QV_AssociatedObject* holder = [QV_AssociatedObject new];
  holder->content = std::move(object);
  objc_setAssociatedObject(owner, key, holder, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
}

}  // namespace qv_commons::uikit
