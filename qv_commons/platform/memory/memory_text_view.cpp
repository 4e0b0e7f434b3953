#include "qv_commons/platform/memory/memory_text_view.h"

#include <algorithm>

#include "qv_commons/platform/memory/utf16.h"

namespace qv_commons::memory {

void MemoryAttributedString::addLink(std::string_view value, TextRange range) {
  record_->add(name_, ".addLink ", inQuotes(value), " ", std::to_string(range.location), " ",
               std::to_string(range.length));
  links_.push_back({std::string(value), range});
}

MemoryTextView::MemoryTextView(Record& record, std::string name, const ViewLayout& layout)
    : MemoryViewOf(record, std::move(name)),
      linksCanBeChosen_(layout.isSelectable && !layout.isEditable) {
  if (layout.text) {
    shown_.emplace(record_, name_ + ".attributedText", utf16Of(*layout.text), layout.textColor);
  }
}

std::string MemoryTextView::text() const {
  return shown_ ? utf8Of(shown_->text()) : std::string();
}

std::string MemoryTextView::textIn(TextRange range) const {
  if (!shown_ || range.location > shown_->text().size()) return {};
  return utf8Of(std::u16string_view(shown_->text()).substr(range.location, range.length));
}

std::vector<Link> MemoryTextView::links() const {
  return shown_ ? shown_->links() : std::vector<Link>();
}

const Link* MemoryTextView::linkAt(std::size_t unit) const {
  if (!shown_) return nullptr;
  const std::vector<Link>& links = shown_->links();
  const auto last = std::find_if(links.rbegin(), links.rend(), [&](const Link& link) {
    return unit >= link.range.location && unit - link.range.location < link.range.length;
  });
  return last == links.rend() ? nullptr : &*last;
}

std::optional<Link> MemoryTextView::choosableLinkAt(std::size_t unit) const {
  const Link* link = linksCanBeChosen_ ? linkAt(unit) : nullptr;
  return link == nullptr ? std::nullopt : std::optional(*link);
}

std::optional<Color> MemoryTextView::colorAt(std::size_t unit) const {
  if (!shown_) return std::nullopt;
  return linkColor_ && linkAt(unit) != nullptr ? linkColor_ : shown_->foreground();
}

std::unique_ptr<AttributedString> MemoryTextView::attributedText() const {
  note("attributedText");
  return shown_ ? std::make_unique<MemoryAttributedString>(*shown_) : nullptr;
}

void MemoryTextView::setAttributedText(const AttributedString& text) {
  note("setAttributedText");
  shown_ = static_cast<const MemoryAttributedString&>(text);
}

void MemoryTextView::setLinkTextAttributes(const Color& foreground) {
  note("setLinkTextAttributes ", textOf(foreground));
  linkColor_ = foreground;
}

void MemoryTextView::setTextColor(const Color& color) {
  note("setTextColor ", textOf(color));
  if (shown_) shown_->setForeground(color);
}

void MemoryTextView::setDelegate(TextViewDelegate* delegate) {
  note("setDelegate", delegate == nullptr ? " none" : "");
  delegate_ = delegate;
}

}  // namespace qv_commons::memory
