// What a tap on a link of a text view does, for adapters whose system has no links of its own. Not
// for hosts.
#pragma once

#include <string_view>

#include "qv_commons/export.h"
#include "qv_commons/platform/text_range.h"

namespace qv_commons {

class Application;
class TextView;
class TextViewDelegate;

// Asks `delegate`, if there is one, whether the system opens the link `value` at `range`. Without a
// delegate, or if it says so, the system opens it; a value that is not a URL is ignored.
QV_COMMONS_EXPORT void interactWithLink(TextView& textView, TextViewDelegate* delegate,
                                        std::string_view value, TextRange range,
                                        Application& application);

}  // namespace qv_commons
