// The text view of the memory adapter.
//
//     qv_commons::memory::Record record;
//     qv_commons::memory::MemoryTextView policy(record, "policy", {.text = "Privacy & Terms"});
//     policy.addLinks({{"https://example.com/privacy", {0, 7}}}, {.blue = 1});
//     bool linked = policy.links().front().value == "https://example.com/privacy";
//     bool marked = policy.textIn(policy.links().front().range) == "Privacy";
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/memory/memory_views.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryTextView final : public MemoryViewOf<TextView> {
 public:
  MemoryTextView(Record& record, std::string name, const ViewLayout& layout);

  // The text in UTF-8, and a piece of it; half a surrogate pair shows as U+FFFD.
  std::string text() const;
  std::string textIn(TextRange range) const;

  const std::vector<TextLink>& links() const { return links_; }  // in the order of their adding

  // The link at that UTF-16 unit that a user can tap: std::nullopt if there is none, or if the view
  // is not selectable or is editable.
  std::optional<TextLink> choosableLinkAt(std::size_t unit) const;

  // The colour in which that UTF-16 unit is shown; std::nullopt if none was ever set.
  std::optional<Color> colorAt(std::size_t unit) const;

  TextViewDelegate* delegate() const { return delegate_; }

  std::optional<std::size_t> textLength() const override;
  void addLinks(const std::vector<TextLink>& links, const Color& foreground) override;
  void setTextColor(const Color& color) override;
  void setDelegate(TextViewDelegate* delegate) override;

 private:
  const TextLink* linkAt(std::size_t unit) const;

  std::optional<std::u16string> text_;
  std::vector<TextLink> links_;
  std::optional<Color> textColor_;
  std::optional<Color> linkColor_;
  bool linksCanBeChosen_;
  TextViewDelegate* delegate_ = nullptr;
};

}  // namespace qv_commons::memory
