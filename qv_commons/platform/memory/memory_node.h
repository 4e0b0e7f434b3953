// The native side of every view controller of the memory adapter.
#pragma once

#include <string>

#include "qv_commons/platform/memory/record.h"
#include "qv_commons/platform/memory/transitions.h"
#include "qv_commons/platform/presentation.h"

namespace qv_commons::memory {

class MemoryNode : public PresentationNode {
 public:
  // `name` stands for the controller in the record's lines.
  MemoryNode(Record& record, Transitions& transitions, std::string name,
             ViewControllerKind kind = ViewControllerKind::plain);

  const std::string& name() const { return name_; }
  bool isOnScreen() const { return presenter() != nullptr; }
  bool isModalInPresentation() const { return modalInPresentation_; }
  UserInterfaceStyle overrideUserInterfaceStyle() const { return overrideStyle_; }

  // The controller that a navigation or tab bar controller shows; not owned, may be null.
  void setChildViewController(ViewController* child) { child_ = child; }

  // What the user does where the screen lets it be swiped away. False, and nothing happens, where
  // the screen is modal in presentation or not on the screen.
  bool swipeAway();

  void presentViewController(std::shared_ptr<ViewController> controller, bool animated,
                             Completion completion) override;
  void dismissViewController(bool animated, Completion completion) override;
  void setModalInPresentation(bool modal) override;
  void setOverrideUserInterfaceStyle(UserInterfaceStyle style) override;
  ViewController* childViewController() const override { return child_; }

  // The node behind a controller that this adapter made.
  static MemoryNode& of(const ViewController& controller);

 protected:
  void show(bool) override {}
  void hide(bool) override {}
  void afterTransition(Completion transitionDone) override;

  // Dismissed by the user, which is no operation to be noted.
  void leave(Completion completion);

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
class MemoryViewController final : public MemoryNode {
 public:
  using MemoryNode::MemoryNode;
  ViewController& controller() override { return controller_; }

 private:
  ViewController controller_{*this};
};

}  // namespace qv_commons::memory
