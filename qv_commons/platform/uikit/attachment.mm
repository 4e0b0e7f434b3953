#import "qv_commons/platform/uikit/attachment.h"

#include <objc/runtime.h>
#include <utility>

@interface QV_Attachment : NSObject {
 @public
  std::shared_ptr<void> content;
}
@end

@implementation QV_Attachment
@end

namespace qv_commons::uikit {
std::shared_ptr<void> attachmentOf(id owner, const void* key) {
  QV_Attachment* attachment = objc_getAssociatedObject(owner, key);
  return attachment == nil ? nullptr : attachment->content;
}

void attach(id owner, const void* key, std::shared_ptr<void> content) {
  QV_Attachment* attachment = [QV_Attachment new];
  attachment->content = std::move(content);
  objc_setAssociatedObject(owner, key, attachment, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
}

}  // namespace qv_commons::uikit
