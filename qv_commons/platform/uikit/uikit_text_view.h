// Text views with links by UITextView.
#pragma once

#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/views.h"

namespace qv_commons::uikit {

std::shared_ptr<TextView> makeTextView(UITextView* textView);

// Asks `delegate` about the link that the user chose in `textView`.
bool shouldInteract(TextViewDelegate& delegate, UITextView* textView, NSURL* url, NSRange range);

}  // namespace qv_commons::uikit
