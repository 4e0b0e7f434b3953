// Screens whose views come from a layout in a resource bundle.
//
// The adapter loads the layout when the screen is first shown: it connects the outlets by name, the
// actions by selector name, and then calls `viewDidLoad`.
//
//     class Greeting final : public qv_commons::LayoutScreen {
//      public:
//       using LayoutScreen::LayoutScreen;
//       std::weak_ptr<qv_commons::Label> title;
//
//       std::string_view headingOutlet() const override { return "title"; }
//       std::vector<qv_commons::Outlet> outlets() override { return {{"title", title}}; }
//       std::vector<qv_commons::Action> actions() override { return {}; }
//       void viewDidLoad() override { title.lock()->setText("Hello"); }
//     };
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

class View;

// A view of the layout by its name, and the screen's weak reference to it.
class Outlet {
 public:
  template <class ViewType>
  Outlet(std::string_view outletName, std::weak_ptr<ViewType>& reference)
      : name(outletName), reference_(&reference), access_(&access<ViewType>) {}

  std::string_view name;

  std::shared_ptr<View> view() const { return access_(reference_, nullptr); }  // null: unconnected

  // The reference becomes empty if the view is null or of another class.
  void connect(const std::shared_ptr<View>& view) const { access_(reference_, &view); }

 private:
  template <class ViewType>
  static std::shared_ptr<View> access(void* reference, const std::shared_ptr<View>* connected) {
    auto& outlet = *static_cast<std::weak_ptr<ViewType>*>(reference);
    if (connected != nullptr) outlet = std::dynamic_pointer_cast<ViewType>(*connected);
    return outlet.lock();
  }

  void* reference_;
  std::shared_ptr<View> (*access_)(void* reference, const std::shared_ptr<View>* connected);
};

// What a view of the layout triggers by its selector name, for example "onConfirmPressed:".
struct Action {
  std::string_view selector;
  Completion run;
};

class LayoutScreen : public ViewController {
 public:
  // `native` shows this screen.
  explicit LayoutScreen(std::unique_ptr<ViewController> native) : native_(std::move(native)) {}

  virtual std::vector<Outlet> outlets() = 0;
  virtual std::vector<Action> actions() = 0;

  // The outlet of the label whose text is the screen's name, for a window's title or a screen
  // reader.
  virtual std::string_view headingOutlet() const = 0;

  // Called once, after the outlets and actions have been connected.
  virtual void viewDidLoad() = 0;

  void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                             Completion completion) final {
    native_->presentViewController(std::move(controller), animated, std::move(completion));
  }
  void dismissViewController(bool animated, Completion completion) final {
    native_->dismissViewController(animated, std::move(completion));
  }
  void setModalInPresentation(bool modal) final { native_->setModalInPresentation(modal); }
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style) final {
    native_->setOverrideUserInterfaceStyle(style);
  }
  ViewController* presentedViewController() const final {
    return native_->presentedViewController();
  }
  ViewController* presentingViewController() const final {
    return native_->presentingViewController();
  }
  ViewController* childViewController() const final { return nullptr; }
  std::shared_ptr<ViewController> retained() final { return native_->retained(); }
  ViewController& native() final { return *native_; }

 private:
  std::unique_ptr<ViewController> native_;
};

// Makes the screen for the native that is to show it.
using LayoutScreenFactory =
    std::function<std::shared_ptr<LayoutScreen>(std::unique_ptr<ViewController> native)>;

}  // namespace qv_commons
