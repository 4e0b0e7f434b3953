// Presentation for adapters whose system has none of its own: who is shown over whom.
//
// An adapter derives its natives from `NativeController`, says how a screen is shown and hidden,
// and makes controllers of them with `NativeOf`:
//
//     class Window : public qv_commons::NativeController {
//      public:
//       using NativeController::NativeController;
//       // and what an adapter does about these three:
//       // void setModalInPresentation(bool modal);
//       // void setOverrideUserInterfaceStyle(UserInterfaceStyle style);
//       // ViewController* childViewController() const;
//      protected:
//       void show(bool) override { /* put it on the screen */ }
//       void hide(bool) override { /* remove it */ }
//       void afterTransition(qv_commons::Completion completion) override { completion(); }
//     };
//     using WindowController = qv_commons::NativeOf<qv_commons::ViewController, Window>;
//
// Main thread only.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "qv_commons/export.h"
#include "qv_commons/platform/view_controller.h"

namespace qv_commons {

struct Presentation {
  std::shared_ptr<ViewController> presenter;
  std::shared_ptr<ViewController> presented;
};

// Who presents whom on an adapter's screens, in the order of presenting. Keeps both alive. Outlives
// its controllers, which alone change it.
using Presentations = std::vector<Presentation>;

// Dismisses everything that is presented, without animation.
QV_COMMONS_EXPORT void dismissAll(Presentations& presentations);

class QV_COMMONS_EXPORT NativeController {
 public:
  // The native of `controller`, which is either that controller itself or, for the library's
  // screens, the one that owns it. Both live equally long.
  NativeController(ViewController& controller, Presentations& presentations)
      : controller_(&controller), presentations_(presentations) {}
  virtual ~NativeController() = default;

  // The native of a controller that this process's adapter made.
  static NativeController& of(ViewController& controller);

  // What the library and hosts know this native by.
  ViewController& controller() const { return *controller_; }
  void setController(ViewController& controller) { controller_ = &controller; }

  // Presenting over a controller that presents something already puts the new one on top of that;
  // each of them can be dismissed by itself. Presenting what is on the screen already is a fatal
  // error.
  void present(std::shared_ptr<ViewController> controller, bool animated, Completion completion);

  // What is removed is hidden from the top down and stays alive until `completion` has run.
  void dismiss(bool animated, Completion completion);

  ViewController* presented() const { return presented_; }
  ViewController* presenting() const { return presenter_ ? presenter_->controller_ : nullptr; }
  std::shared_ptr<ViewController> retained() const { return controller_->shared_from_this(); }

 protected:
  virtual void show(bool animated) = 0;
  virtual void hide(bool animated) = 0;

  // Runs `transitionDone` when the transition that was just started has ended. Never empty.
  virtual void afterTransition(Completion transitionDone) = 0;

  // The native that this one is shown over, or null.
  NativeController* presenter() const { return presenter_; }

 private:
  bool isAbove(const NativeController& other) const;
  void leave();

  ViewController* controller_;
  Presentations& presentations_;
  NativeController* presenter_ = nullptr;
  ViewController* presented_ = nullptr;  // the last one, in the one load that a look-up takes
};

// A controller of that interface over a native of that class, as one object.
template <class Interface, class Native>
class NativeOf : public Interface, public Native {
 public:
  // The arguments are those of `Native` after its controller.
  template <class... Arguments>
  explicit NativeOf(Arguments&&... arguments)
      : Native(*this, std::forward<Arguments>(arguments)...) {}
  template <class... Arguments>
  explicit NativeOf(ViewControllerKind kind, Arguments&&... arguments)
      : Interface(kind), Native(*this, std::forward<Arguments>(arguments)...) {}

  void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                             Completion completion) override {
    this->present(std::move(controller), animated, std::move(completion));
  }
  void dismissViewController(bool animated, Completion completion) override {
    this->dismiss(animated, std::move(completion));
  }
  void setModalInPresentation(bool modal) override { Native::setModalInPresentation(modal); }
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style) override {
    Native::setOverrideUserInterfaceStyle(style);
  }
  ViewController* presentedViewController() const override { return this->presented(); }
  ViewController* presentingViewController() const override { return this->presenting(); }
  ViewController* childViewController() const override { return Native::childViewController(); }
  std::shared_ptr<ViewController> retained() override { return Native::retained(); }
};

}  // namespace qv_commons
