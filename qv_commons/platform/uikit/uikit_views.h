// The views of the screens by UIKit's.
#pragma once

#import <UIKit/UIKit.h>
#include <memory>

#include "qv_commons/platform/views.h"

namespace qv_commons::uikit {

// The C++ side of a view, a Label for a UILabel and so on: found again, or made and associated.
// Lives as long as the view does. Null for nil.
std::shared_ptr<View> toView(UIView* view);

// nil for null.
UIView* toUIView(const View* view);

// The colour that a host handed in comes out again as the same object.
Color toColor(UIColor* color);
UIColor* toUIColor(const Color& color);

}  // namespace qv_commons::uikit
