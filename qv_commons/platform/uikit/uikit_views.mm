#import "qv_commons/platform/uikit/uikit_views.h"

#include <utility>

#import "qv_commons/platform/uikit/associated_object.h"
#import "qv_commons/platform/uikit/text.h"
#import "qv_commons/platform/uikit/uikit_text_view.h"
#import "qv_commons/platform/uikit/view_over.h"

namespace qv_commons::uikit {
namespace {

const char kViewKey = 0;

using PlainView = ViewOver<View, UIView>;

class LabelView final : public ViewOver<Label, UILabel> {
 public:
  using ViewOver::ViewOver;

  std::optional<std::string> text() const override { return toOptionalString(view().text); }
  void setText(const std::string& text) override { view().text = toNSString(text); }
  void setTextColor(const Color& color) override { view().textColor = toUIColor(color); }
};

class ButtonView final : public ViewOver<Button, UIButton> {
 public:
  using ViewOver::ViewOver;

  void setEnabled(bool enabled) override { view().enabled = enabled; }
  void setTitleColor(const Color& color, ControlState state) override {
    [view() setTitleColor:toUIColor(color) forState:static_cast<UIControlState>(state)];
  }
};

class DatePickerView final : public ViewOver<DatePicker, UIDatePicker> {
 public:
  using ViewOver::ViewOver;

  void setMaximumDate(std::optional<Instant> date) override {
    view().maximumDate = date ? toNSDate(*date) : nil;
  }
  void setDate(Instant date) override { view().date = toNSDate(date); }
  Instant date() const override { return instantAt(view().date.timeIntervalSince1970); }

 private:
  static NSDate* toNSDate(Instant instant) {
    return [NSDate dateWithTimeIntervalSince1970:secondsSince1970(instant)];
  }
};

std::shared_ptr<View> makeView(UIView* view) {
  if ([view isKindOfClass:[UILabel class]]) {
    return std::make_shared<LabelView>(static_cast<UILabel*>(view));
  }
  if ([view isKindOfClass:[UIButton class]]) {
    return std::make_shared<ButtonView>(static_cast<UIButton*>(view));
  }
  if ([view isKindOfClass:[UIDatePicker class]]) {
    return std::make_shared<DatePickerView>(static_cast<UIDatePicker*>(view));
  }
  if ([view isKindOfClass:[UITextView class]]) {
    return makeTextView(static_cast<UITextView*>(view));
  }
  return std::make_shared<PlainView>(view);
}

}  // namespace

std::shared_ptr<View> toView(UIView* view) {
  if (view == nil) return nullptr;
  if (std::shared_ptr<void> found = associatedObject(view, &kViewKey)) {
    return std::static_pointer_cast<View>(std::move(found));
  }
  std::shared_ptr<View> made = makeView(view);
  associate(view, &kViewKey, made);
  return made;
}

UIView* toUIView(const View* view) {
  return view == nullptr ? nil : dynamic_cast<const NativeView&>(*view).uiView();
}

Color toColor(UIColor* color) {
  const void* retained = (__bridge_retained const void*)color;
  return {.native = std::shared_ptr<const void>(
              retained, [](const void* released) { (void)(__bridge_transfer id)released; })};
}

UIColor* toUIColor(const Color& color) {
  if (color.native) return (__bridge UIColor*)color.native.get();
  if (color == Color{1, 1, 1, 1}) return UIColor.whiteColor;
  if (color == Color{0, 0, 0, 1}) return UIColor.blackColor;
  return [UIColor colorWithRed:color.red green:color.green blue:color.blue alpha:color.alpha];
}

}  // namespace qv_commons::uikit
