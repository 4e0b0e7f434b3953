// The views of the memory adapter: each operation is recorded, and what was set can be
// read. `MemoryScreen` plays the user on them.
//
//     qv_commons::memory::Record record;
//     qv_commons::memory::MemoryLabel title(record, "title", "Hello");
//     title.setText("Good day");
//     bool changed = title.text() == "Good day";
//     bool recorded = record.lines().back() == "title.setText \"Good day\"";
#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/memory/memory_layout.h"
#include "qv_commons/platform/memory/record.h"
#include "qv_commons/platform/views.h"
#include "qv_commons/support/decimal_text.h"

namespace qv_commons::memory {

// "1.0 1.0 1.0 1.0": red, green, blue, alpha.
QV_COMMONS_EXPORT std::string textOf(const Color& color);

// What all views have in common.
template <class Interface>
class MemoryViewOf : public Interface {
 public:
  // `name` stands for the view in the record's lines.
  MemoryViewOf(Record& record, std::string name) : record_(record), name_(std::move(name)) {}

  // What was set; std::nullopt, 0 and false at first.
  const std::optional<Color>& backgroundColor() const { return backgroundColor_; }
  double cornerRadius() const { return cornerRadius_; }
  bool clipsToBounds() const { return clipsToBounds_; }

  void setBackgroundColor(const Color& color) override {
    note("setBackgroundColor ", textOf(color));
    backgroundColor_ = color;
  }
  void setCornerRadius(double points) override {
    note("setCornerRadius ", decimalText(points));
    cornerRadius_ = points;
  }
  void setClipsToBounds(bool clips) override {
    note("setClipsToBounds ", clips ? "true" : "false");
    clipsToBounds_ = clips;
  }

 protected:
  template <class... Pieces>
  void note(const Pieces&... pieces) const {
    record_.add(name_, ".", pieces...);
  }

  Record& record_;
  std::string name_;

 private:
  std::optional<Color> backgroundColor_;
  double cornerRadius_ = 0;
  bool clipsToBounds_ = false;
};

class MemoryView final : public MemoryViewOf<View> {
 public:
  using MemoryViewOf::MemoryViewOf;
};

class QV_COMMONS_EXPORT MemoryLabel final : public MemoryViewOf<Label> {
 public:
  MemoryLabel(Record& record, std::string name, std::optional<std::string> text)
      : MemoryViewOf(record, std::move(name)), text_(std::move(text)) {}

  const std::optional<Color>& textColor() const { return textColor_; }

  std::optional<std::string> text() const override;
  void setText(const std::string& text) override;
  void setTextColor(const Color& color) override;

 private:
  std::optional<std::string> text_;
  std::optional<Color> textColor_;
};

class QV_COMMONS_EXPORT MemoryButton final : public MemoryViewOf<Button> {
 public:
  using MemoryViewOf::MemoryViewOf;

  bool isEnabled() const { return enabled_; }
  const std::optional<Color>& titleColor(ControlState state) const {
    return titleColors_.at(static_cast<std::size_t>(state));
  }

  void setEnabled(bool enabled) override;
  void setTitleColor(const Color& color, ControlState state) override;

 private:
  bool enabled_ = true;
  std::array<std::optional<Color>, 3> titleColors_;  // by the numeric value of the state
};

class QV_COMMONS_EXPORT MemoryDatePicker final : public MemoryViewOf<DatePicker> {
 public:
  using MemoryViewOf::MemoryViewOf;

  const std::optional<Instant>& maximumDate() const { return maximumDate_; }

  // The wheels are turned: like `setDate`, but not recorded.
  void turnTo(Instant date) { date_ = date; }

  void setMaximumDate(std::optional<Instant> date) override;
  void setDate(Instant date) override;
  Instant date() const override;  // the maximum, if what was set lies beyond it

 private:
  std::optional<Instant> maximumDate_;
  Instant date_ = {};
};

}  // namespace qv_commons::memory
