// Who decides about a text view's tapped links. Main thread only.
#pragma once

#include <string_view>

#include "qv_commons/platform/text_range.h"

namespace qv_commons {

class TextView;

class TextViewDelegate {
 public:
  virtual ~TextViewDelegate() = default;

  // The user tapped the link `url` at `range`. True: the system opens it.
  virtual bool shouldInteractWithURL(TextView& textView, std::string_view url, TextRange range) = 0;
};

}  // namespace qv_commons
