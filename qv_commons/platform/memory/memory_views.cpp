#include "qv_commons/platform/memory/memory_views.h"

namespace qv_commons::memory {

std::string textOf(const Color& color) {
  std::string text;
  for (const double component : {color.red, color.green, color.blue, color.alpha}) {
    text.append(text.empty() ? "" : " ").append(decimalText(component));
  }
  return text;
}

std::optional<std::string> MemoryLabel::text() const {
  note("text");
  return text_;
}

void MemoryLabel::setText(const std::string& text) {
  note("setText ", inQuotes(text));
  text_ = text;
}

void MemoryLabel::setTextColor(const Color& color) {
  note("setTextColor ", textOf(color));
  textColor_ = color;
}

void MemoryButton::setEnabled(bool enabled) {
  note("setEnabled ", enabled ? "true" : "false");
  enabled_ = enabled;
}

void MemoryButton::setTitleColor(const Color& color, ControlState state) {
  note("setTitleColor ", textOf(color), state == ControlState::normal ? " normal" : " disabled");
  titleColors_.at(static_cast<std::size_t>(state)) = color;
}

void MemoryDatePicker::setMaximumDate(std::optional<Instant> date) {
  note("setMaximumDate ", date ? decimalText(secondsSince1970(*date)) : std::string("none"));
  maximumDate_ = date;
}

void MemoryDatePicker::setDate(Instant date) {
  note("setDate ", decimalText(secondsSince1970(date)));
  date_ = date;
}

Instant MemoryDatePicker::date() const {
  note("date");
  return maximumDate_ && date_ > *maximumDate_ ? *maximumDate_ : date_;
}

}  // namespace qv_commons::memory
