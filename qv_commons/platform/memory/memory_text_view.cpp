#include "qv_commons/platform/memory/memory_text_view.h"

#include <algorithm>

#include "qv_commons/platform/memory/utf16.h"

namespace qv_commons::memory {

MemoryTextView::MemoryTextView(Record& record, std::string name, const ViewLayout& layout)
    : MemoryViewOf(record, std::move(name)),
      linksCanBeChosen_(layout.isSelectable && !layout.isEditable) {
  if (!layout.text) return;
  text_ = utf16Of(*layout.text);
  textColor_ = layout.textColor;
}

std::string MemoryTextView::text() const {
  return utf8Of(text_.value_or(u""));
}

std::string MemoryTextView::textIn(TextRange range) const {
  if (!text_ || range.location > text_->size()) return {};
  return utf8Of(std::u16string_view(*text_).substr(range.location, range.length));
}

const TextLink* MemoryTextView::linkAt(std::size_t unit) const {
  const auto last = std::find_if(links_.rbegin(), links_.rend(), [&](const TextLink& link) {
    return unit >= link.range.location && unit - link.range.location < link.range.length;
  });
  return last == links_.rend() ? nullptr : &*last;
}

std::optional<TextLink> MemoryTextView::choosableLinkAt(std::size_t unit) const {
  const TextLink* link = linksCanBeChosen_ ? linkAt(unit) : nullptr;
  return link == nullptr ? std::nullopt : std::optional(*link);
}

std::optional<Color> MemoryTextView::colorAt(std::size_t unit) const {
  return linkColor_ && linkAt(unit) != nullptr ? linkColor_ : textColor_;
}

std::optional<std::size_t> MemoryTextView::textLength() const {
  note("textLength");
  return text_ ? std::optional(text_->size()) : std::nullopt;
}

void MemoryTextView::addLinks(const std::vector<TextLink>& links, const Color& foreground) {
  std::string listed;
  for (const auto& [value, range] : links) {
    listed.append(inQuotes(value)).append(" ").append(std::to_string(range.location));
    listed.append(" ").append(std::to_string(range.length)).append(", ");
  }
  note("addLinks ", listed, textOf(foreground));
  links_.insert(links_.end(), links.begin(), links.end());
  linkColor_ = foreground;
}

void MemoryTextView::setTextColor(const Color& color) {
  note("setTextColor ", textOf(color));
  if (text_) textColor_ = color;
}

void MemoryTextView::setDelegate(TextViewDelegate* delegate) {
  note("setDelegate", delegate == nullptr ? " none" : "");
  delegate_ = delegate;
}

}  // namespace qv_commons::memory
