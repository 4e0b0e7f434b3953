// Who decides about a text view's tapped links. Main thread only.
#pragma once

#include <cstddef>
#include <string_view>

namespace qv_commons {

class TextView;

// A range of a text, in UTF-16 code units.
struct TextRange {
  std::size_t location = 0;
  std::size_t length = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

class TextViewDelegate {
 public:
  virtual ~TextViewDelegate() = default;

  // The user tapped the link `url` at `range`. True: the system opens it.
  virtual bool shouldInteractWithURL(TextView& textView, std::string_view url, TextRange range) = 0;
};

}  // namespace qv_commons
