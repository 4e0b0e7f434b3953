// What every view of the adapter has in common.
#pragma once

#import "qv_commons/platform/uikit/uikit_views.h"

namespace qv_commons::uikit {

class NativeView {
 public:
  virtual ~NativeView() = default;
  virtual UIView* uiView() const = 0;
};

// What every view does, over a view of UIKit's class `Native`.
template <class Interface, class Native>
class ViewOver : public Interface, public NativeView {
 public:
  explicit ViewOver(Native* view) : view_(view) {}

  void setBackgroundColor(const Color& color) override {
    UIView* view = view_;
    view.backgroundColor = toUIColor(color);
  }
  void setCornerRadius(double points) override {
    UIView* view = view_;
    view.layer.cornerRadius = points;
  }
  void setClipsToBounds(bool clips) override {
    UIView* view = view_;
    view.clipsToBounds = clips;
  }

  UIView* uiView() const override { return view_; }

 protected:
  Native* view() const { return static_cast<Native*>(view_); }

 private:
  // Not a pointer to `Native`: clang takes a weak pointer to a template's parameter for a strong
  // one.
  __weak UIView* view_;
};

}  // namespace qv_commons::uikit
