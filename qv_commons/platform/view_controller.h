// A view controller: one screen of the host's, of the library's or of the platform's.
//
// Each adapter implements it for its own screens. Hosts get theirs from their adapter:
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

// A closure without arguments or result; an empty one means that there is none.
using Completion = std::function<void()>;

// A subclass of a navigation controller is a navigation controller, and so on.
enum class ViewControllerKind : std::uint8_t { plain, navigation, tabBar, alert };

class ViewController : public std::enable_shared_from_this<ViewController> {
 public:
  virtual ~ViewController() = default;
  ViewController(const ViewController&) = delete;
  ViewController& operator=(const ViewController&) = delete;

  // Not virtual, because it never changes and every look-up asks each controller on its way for it.
  ViewControllerKind kind() const { return kind_; }

  // Shows `controller` over this one and runs `completion`, if present, once it is on the screen.
  // Both controllers stay alive for as long as the one is shown over the other.
  virtual void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                                     Completion completion) = 0;

  // Removes the controller that this one presents and everything above it; if this one presents
  // nothing, removes this one itself. Runs `completion`, if present, afterwards. If there is
  // nothing to remove, nothing happens and `completion` is dropped.
  virtual void dismissViewController(bool animated, Completion completion) = 0;

  // True: the user can't remove the screen by a swipe or Escape.
  virtual void setModalInPresentation(bool modal) = 0;

  // Pins the screen to a light or dark look; `unspecified` follows the system.
  virtual void setOverrideUserInterfaceStyle(UserInterfaceStyle style) = 0;

  // The controller shown over this one and the one that this one is shown over; null if none.
  virtual ViewController* presentedViewController() const = 0;
  virtual ViewController* presentingViewController() const = 0;

  // A navigation controller's visible controller or a tab bar controller's selected one; null if
  // there is none, and for every other kind.
  virtual ViewController* childViewController() const = 0;

  // A reference that keeps this controller and its native alive.
  virtual std::shared_ptr<ViewController> retained() = 0;

  // The adapter's own object for this screen, its native: the controller itself, but for the
  // library's screens, which are made of layouts.
  virtual ViewController& native() { return *this; }

 protected:
  explicit ViewController(ViewControllerKind kind = ViewControllerKind::plain) : kind_(kind) {}

 private:
  const ViewControllerKind kind_;
};

}  // namespace qv_commons
