// The views of the library's screens over Qt's widgets.
//
// A view refers to its widget, which must outlive it, and is made once for each.
#pragma once

#include <QLabel>
#include <functional>
#include <memory>

#include "qv_commons/platform/desktop/backdrop.h"
#include "qv_commons/platform/desktop/link_text_view.h"
#include "qv_commons/platform/desktop/screen_button.h"
#include "qv_commons/platform/desktop/wheel_date_picker.h"
#include "qv_commons/platform/view_controller.h"
#include "qv_commons/platform/views.h"

namespace qv_commons::desktop {

QColor toQColor(const Color& color);

// What all views have in common.
template <typename Interface>
class WidgetView : public Interface {
 public:
  explicit WidgetView(QWidget& widget) : backdrop_(*new Backdrop(widget)) {}

  void setBackgroundColor(const Color& color) override { backdrop_.setColor(toQColor(color)); }
  void setCornerRadius(double points) override { backdrop_.setCornerRadius(points); }
  void setClipsToBounds(bool clips) override { backdrop_.setClipsToBounds(clips); }

 private:
  Backdrop& backdrop_;
};

// On an opaque colour, what it holds and has no colour of its own (the date picker) writes in black
// or white, whichever is easier to read.
class PanelView final : public WidgetView<View> {
 public:
  explicit PanelView(QWidget& panel) : WidgetView(panel), panel_(panel) {}

  void setBackgroundColor(const Color& color) override;

 private:
  QWidget& panel_;
};

class LabelView final : public WidgetView<Label> {
 public:
  // Takes over the label's text.
  explicit LabelView(QLabel& label);

  std::optional<std::string> text() const override;
  void setText(const std::string& text) override;
  void setTextColor(const Color& color) override;

 private:
  void show();

  QLabel& label_;
  QString text_;
};

class ButtonView final : public WidgetView<Button> {
 public:
  explicit ButtonView(ScreenButton& button) : WidgetView(button), button_(button) {}

  void setEnabled(bool enabled) override { button_.setEnabled(enabled); }
  void setTitleColor(const Color& color, ControlState state) override;

 private:
  ScreenButton& button_;
};

class PickerView final : public WidgetView<DatePicker> {
 public:
  explicit PickerView(WheelDatePicker& picker) : WidgetView(picker), picker_(picker) {}

  void setMaximumDate(std::optional<Instant> date) override { picker_.setMaximumDate(date); }
  void setDate(Instant date) override { picker_.setDate(date); }
  Instant date() const override { return picker_.date(); }

 private:
  WheelDatePicker& picker_;
};

// Runs something from the event loop, see `DesktopController::later`.
using Later = std::function<void(Completion)>;

// Opens a link with the system; what is no URL comes to nothing.
using LinkOpener = std::function<void(std::string_view link)>;

class LinkedTextView final : public WidgetView<TextView> {
 public:
  LinkedTextView(LinkTextView& widget, LinkOpener open, const Later& later);

  std::optional<std::size_t> textLength() const override;
  void addLinks(const std::vector<TextLink>& links, const Color& foreground) override;
  void setTextColor(const Color& color) override;
  void setDelegate(TextViewDelegate* delegate) override { delegate_ = delegate; }

 private:
  void follow(const QString& target);
  void paintLinks() const;

  LinkTextView& widget_;
  LinkOpener open_;
  std::vector<TextLink> links_;  // marked in the document by their places here
  QColor linkColor_;
  TextViewDelegate* delegate_ = nullptr;
};

// The view that goes with the widget's class.
std::shared_ptr<View> makeView(QWidget& widget, const LinkOpener& open, const Later& later);

}  // namespace qv_commons::desktop
