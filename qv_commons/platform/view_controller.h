// A view controller as the library and C++ hosts see it, and the narrow interface behind it.
//
// A `ViewController` holds no native thing: it forwards to the `NativeViewController` that an
// adapter attached to it when it made both. The native side owns the C++ side, so a
// `ViewController` that you can reach always has its native. Hosts get theirs from their adapter:
//
//     qv_commons::memory::MemoryPlatform platform;
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//     home->presentViewController(platform.makeViewController("settings"), true, nullptr);
//
// Main thread only, all of it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "qv_commons/platform/user_interface_style.h"

namespace qv_commons {

class ViewController;

// A closure without arguments or result; an empty one stands for "absent".
using Completion = std::function<void()>;

// What a controller is, by kind-of: a subclass of a navigation controller is a navigation
// controller.
enum class ViewControllerKind : std::uint8_t { plain, navigation, tabBar, alert };

// What an adapter implements for each controller.
class NativeViewController {
 public:
  explicit NativeViewController(ViewControllerKind kind = ViewControllerKind::plain)
      : kind_(kind) {}
  virtual ~NativeViewController() = default;

  // Not virtual, because it never changes and every look-up asks each controller on its way for it.
  ViewControllerKind kind() const { return kind_; }

  // Shows `controller` over this one and keeps it alive while it is shown; runs `completion`, if
  // present, once it is on the screen.
  virtual void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                                     Completion completion) = 0;

  // Takes away the controller that this one presents and everything above it; where this one
  // presents nothing, takes away this one itself. Runs `completion`, if present, afterwards; where
  // there is nothing to take away, nothing happens and `completion` is dropped.
  virtual void dismissViewController(bool animated, Completion completion) = 0;

  // True: the user can't take the screen away by a swipe, Escape or the window's close button.
  virtual void setModalInPresentation(bool modal) = 0;

  // Pins the screen to a light or dark look; `unspecified` follows the system.
  virtual void setOverrideUserInterfaceStyle(UserInterfaceStyle style) = 0;

  // The controller shown over this one, the one that this one is shown over, or null.
  virtual ViewController* presentedViewController() const = 0;
  virtual ViewController* presentingViewController() const = 0;

  // A reference that keeps this controller and its native alive, for as long as it is held.
  virtual std::shared_ptr<ViewController> retained() = 0;

  // A navigation controller's visible controller, a tab bar controller's selected one; null where
  // there is none, and for every other kind.
  virtual ViewController* childViewController() const = 0;

 private:
  const ViewControllerKind kind_;
};

// Each operation does what the operation of the same name above says.
class ViewController {
 public:
  // `native` owns this object, or is owned together with it, and lives exactly as long.
  explicit ViewController(NativeViewController& native) : native_(native) {}
  virtual ~ViewController() = default;
  ViewController(const ViewController&) = delete;
  ViewController& operator=(const ViewController&) = delete;

  void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                             Completion completion) {
    native_.presentViewController(std::move(controller), animated, std::move(completion));
  }
  void dismissViewController(bool animated, Completion completion) {
    native_.dismissViewController(animated, std::move(completion));
  }
  void setModalInPresentation(bool modal) { native_.setModalInPresentation(modal); }
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style) {
    native_.setOverrideUserInterfaceStyle(style);
  }
  ViewController* presentedViewController() const { return native_.presentedViewController(); }
  ViewController* presentingViewController() const { return native_.presentingViewController(); }
  ViewControllerKind kind() const { return native_.kind(); }
  ViewController* childViewController() const { return native_.childViewController(); }
  std::shared_ptr<ViewController> retained() { return native_.retained(); }

  // For adapters: the native that was attached.
  NativeViewController& native() const { return native_; }

 private:
  NativeViewController& native_;
};

}  // namespace qv_commons
