// The text view of the memory adapter, and its text with attributes.
//
//     qv_commons::memory::Record record;
//     qv_commons::memory::MemoryTextView policy(record, "policy", {.text = "Privacy & Terms"});
//     std::unique_ptr<qv_commons::AttributedString> text = policy.attributedText();
//     text->addLink("https://example.com/privacy", {0, 7});
//     policy.setAttributedText(*text);
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

struct Link {
  std::string value;
  TextRange range;

  friend bool operator==(const Link&, const Link&) = default;
};

class QV_COMMONS_EXPORT MemoryAttributedString final : public AttributedString {
 public:
  // `name` stands for the text in the record's lines.
  MemoryAttributedString(Record& record, std::string name, std::u16string text,
                         std::optional<Color> foreground)
      : record_(&record),
        name_(std::move(name)),
        text_(std::move(text)),
        foreground_(std::move(foreground)) {}

  const std::u16string& text() const { return text_; }
  const std::vector<Link>& links() const {
    return links_;
  }  // in the order in which they were added
  const std::optional<Color>& foreground() const { return foreground_; }
  void setForeground(const Color& color) { foreground_ = color; }

  std::size_t length() const override { return text_.size(); }
  void addLink(std::string_view value, TextRange range) override;

 private:
  Record* record_;
  std::string name_;
  std::u16string text_;
  std::vector<Link> links_;
  std::optional<Color> foreground_;
};

class QV_COMMONS_EXPORT MemoryTextView final : public MemoryViewOf<TextView> {
 public:
  MemoryTextView(Record& record, std::string name, const ViewLayout& layout);

  // The text in UTF-8, and a piece of it; half a surrogate pair shows as U+FFFD.
  std::string text() const;
  std::string textIn(TextRange range) const;

  std::vector<Link> links() const;

  // The link at that UTF-16 unit that a user can tap: std::nullopt if there is none, or if the view
  // is not selectable or is editable.
  std::optional<Link> choosableLinkAt(std::size_t unit) const;

  // The colour in which that UTF-16 unit is shown; std::nullopt if none was ever set.
  std::optional<Color> colorAt(std::size_t unit) const;

  TextViewDelegate* delegate() const { return delegate_; }

  std::unique_ptr<AttributedString> attributedText() const override;
  void setAttributedText(const AttributedString& text) override;
  void setLinkTextAttributes(const Color& foreground) override;
  void setTextColor(const Color& color) override;
  void setDelegate(TextViewDelegate* delegate) override;

 private:
  const Link* linkAt(std::size_t unit) const;

  std::optional<MemoryAttributedString> shown_;
  std::optional<Color> linkColor_;
  bool linksCanBeChosen_;
  TextViewDelegate* delegate_ = nullptr;
};

}  // namespace qv_commons::memory
