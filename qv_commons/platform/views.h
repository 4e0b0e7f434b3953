// The few views that the library's screens use. Each operation does what the platform's operation
// of that name does. Main thread only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qv_commons/platform/clock.h"
#include "qv_commons/platform/color.h"
#include "qv_commons/platform/text_view_delegate.h"

namespace qv_commons {

class View {
 public:
  virtual ~View() = default;

  virtual void setBackgroundColor(const Color& color) = 0;
  virtual void setCornerRadius(double points) = 0;
  virtual void setClipsToBounds(bool clips) = 0;
};

class Label : public View {
 public:
  virtual std::optional<std::string> text() const = 0;  // std::nullopt if none was ever set
  virtual void setText(const std::string& text) = 0;
  virtual void setTextColor(const Color& color) = 0;
};

// The numeric values are the platform's own.
enum class ControlState : std::uint8_t { normal = 0, disabled = 2 };

class Button : public View {
 public:
  virtual void setEnabled(bool enabled) = 0;
  virtual void setTitleColor(const Color& color, ControlState state) = 0;
};

class DatePicker : public View {
 public:
  virtual void setMaximumDate(std::optional<Instant> date) = 0;  // std::nullopt: no maximum
  virtual void setDate(Instant date) = 0;
  virtual Instant date() const = 0;
};

// The value is kept as it is, whether or not it is a URL.
struct TextLink {
  std::string value;
  TextRange range;

  friend bool operator==(const TextLink&, const TextLink&) = default;
};

class TextView : public View {
 public:
  // Of the text that is shown, in UTF-16 code units; std::nullopt if the view has no text.
  virtual std::optional<std::size_t> textLength() const = 0;

  // Makes links of pieces of the text, whose ranges lie within it, beside those that it has. All
  // links are shown in `foreground` and with nothing else of their own.
  virtual void addLinks(const std::vector<TextLink>& links, const Color& foreground) = 0;

  // The colour of all text that is not a link.
  virtual void setTextColor(const Color& color) = 0;

  // Who decides about tapped links; not owned, and must outlive the view. Without a delegate the
  // system opens them.
  virtual void setDelegate(TextViewDelegate* delegate) = 0;
};

}  // namespace qv_commons
