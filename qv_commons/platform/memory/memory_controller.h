// Every view controller of the memory adapter: what a test can read of it, and the user who swipes
// it away.
//
//     std::shared_ptr<qv_commons::ViewController> home = platform.makeViewController("home");
//     auto& controller = qv_commons::memory::MemoryController::of(*home);
//     bool shown = controller.isOnScreen();  // false: it is the first of all
#pragma once

#include <string>

#include "qv_commons/export.h"
#include "qv_commons/platform/memory/record.h"
#include "qv_commons/platform/memory/transitions.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::memory {

class QV_COMMONS_EXPORT MemoryController : public NativeController {
 public:
  // `name` stands for the controller in the record's lines.
  MemoryController(ViewController& controller, Record& record, Transitions& transitions,
                   std::string name)
      : NativeController(controller, transitions.presentations()),
        record_(record),
        transitions_(transitions),
        name_(std::move(name)) {}

  // The memory adapter's side of a controller that it made.
  static MemoryController& of(ViewController& controller);

  const std::string& name() const { return name_; }
  bool isOnScreen() const { return presenter() != nullptr; }
  bool isModalInPresentation() const { return modalInPresentation_; }
  UserInterfaceStyle overrideUserInterfaceStyle() const { return overrideStyle_; }

  // The controller that a navigation or tab bar controller shows; not owned, may be null.
  void setChildViewController(ViewController* child) { child_ = child; }
  ViewController* childViewController() const { return child_; }

  // What the user does if the screen can be swiped away. False, and nothing happens, if the screen
  // is modal in presentation or not on the screen.
  bool swipeAway();

  void present(std::shared_ptr<ViewController> controller, bool animated, Completion completion);
  void dismiss(bool animated, Completion completion);
  void setModalInPresentation(bool modal);
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style);

 protected:
  void show(bool) override {}
  void hide(bool) override {}
  void afterTransition(Completion transitionDone) override;

  Record& record() const { return record_; }
  Transitions& transitions() const { return transitions_; }

 private:
  Record& record_;
  Transitions& transitions_;
  std::string name_;
  bool modalInPresentation_ = false;
  UserInterfaceStyle overrideStyle_ = UserInterfaceStyle::unspecified;
  ViewController* child_ = nullptr;
};

// A host's screen.
using MemoryViewController = NativeOf<ViewController, MemoryController>;

}  // namespace qv_commons::memory
