// The few views that the library's screens use. Each operation does what the platform's operation
// of that name does. Main thread only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qv_commons {

// Red, green, blue and alpha, each from 0.0 to 1.0; or a colour of the platform's own.
struct Color {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;

  // A colour object that a host handed in through its adapter, which hands it on as it is: it may
  // be one that changes with the look of the screen. The four components don't count then.
  std::shared_ptr<const void> native = nullptr;

  friend bool operator==(const Color&, const Color&) = default;
};

class View {
 public:
  virtual ~View() = default;

  virtual void setBackgroundColor(const Color& color) = 0;
  virtual void setCornerRadius(double points) = 0;
  virtual void setClipsToBounds(bool clips) = 0;
};

class Label : public View {
 public:
  virtual std::optional<std::string> text() const = 0;  // nothing where none was ever set
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

// Dates are seconds since 1970-01-01 00:00:00 UTC.
class DatePicker : public View {
 public:
  virtual void setMaximumDate(std::optional<double> date) = 0;  // nothing: no maximum
  virtual void setDate(double date) = 0;
  virtual double date() const = 0;
};

// A range of a text, in UTF-16 code units.
struct TextRange {
  std::size_t location = 0;
  std::size_t length = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

// A mutable copy of a text with its attributes, in the adapter's own form.
class AttributedString {
 public:
  virtual ~AttributedString() = default;

  virtual std::size_t length() const = 0;  // in UTF-16 code units

  // Marks `range`, which lies within the text, as a link with that value; the value is kept as the
  // text it is, whether or not it is a URL.
  virtual void addLink(std::string_view value, TextRange range) = 0;
};

class TextView;

class TextViewDelegate {
 public:
  virtual ~TextViewDelegate() = default;

  // The user chose the link `url` at `range`. The answer: whether the system takes its own action.
  virtual bool shouldInteractWithURL(TextView& textView, std::string_view url, TextRange range) = 0;
};

class TextView : public View {
 public:
  // A copy of the text that is shown; null where the view has none.
  virtual std::unique_ptr<AttributedString> attributedText() const = 0;
  virtual void setAttributedText(const AttributedString& text) = 0;

  // Links are shown in `foreground` and with nothing else of their own.
  virtual void setLinkTextAttributes(const Color& foreground) = 0;

  // The colour of all text that is no link.
  virtual void setTextColor(const Color& color) = 0;

  // Who decides on chosen links; not owned, and must outlive the view. Without a delegate the
  // system opens them.
  virtual void setDelegate(TextViewDelegate* delegate) = 0;
};

}  // namespace qv_commons
