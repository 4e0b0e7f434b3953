// Text views with links by UITextView.
//
// A text view of a layout may be of the class QV_LinkTextView, as those of the library's own are:
//
//     <textView customClass="QV_LinkTextView" ...>
#pragma once

#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/views.h"

// Leaves what fills the links out of what the user copies.
@interface QV_LinkTextView : UITextView
@end

namespace qv_commons::uikit {

std::shared_ptr<TextView> makeTextView(UITextView* textView);

// Asks `delegate` about the link that the user chose in `textView`.
bool shouldInteract(TextViewDelegate& delegate, UITextView* textView, NSURL* url, NSRange range);

}  // namespace qv_commons::uikit
